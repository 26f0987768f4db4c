// Data exchange between a dialog's controls and its members, both ways, and OK held back by a field
// that does not hold what its member needs. (How a page tells a refused field is tried on the pages.)
#include "ui/DataExchange.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;
using testing_support::TextOf;

// One member of every kind, bound as a page binds its settings.
struct Members {
    int32_t check = 0;
    int32_t radio = -1;
    int32_t number = 0;
    uint32_t count = 10;
    std::wstring text;
    bool operator==(const Members&) const = default;
};

void PrintTo(const Members& m, std::ostream* out) {
    *out << "{" << m.check << ", " << m.radio << ", " << m.number << ", " << m.count << ", "
         << testing::PrintToString(m.text) << "}";
}

class DataExchangeTest : public FrameworkTest {
protected:
    void SetUp() override {
        FrameworkTest::SetUp();
        dialog_.exchange = [this](ui::DataExchange& dx) {
            DDX_Check(dx, IDC_FW_CHECK, m_.check);
            DDX_Radio(dx, IDC_FW_RADIO_FIRST, m_.radio);
            DDX_Text(dx, IDC_FW_INT, m_.number);
            DDV_MinMaxInt(dx, m_.number, -5, 50);
            DDX_Text(dx, IDC_FW_UINT, m_.count);
            DDV_MinMaxUInt(dx, m_.count, 10, 5000000);
            DDX_Text(dx, IDC_FW_TEXT, m_.text);
        };
    }

    HWND Item(int id) { return dialog_.Item(id); }
    void Type(int id, const wchar_t* text) { SetWindowTextW(Item(id), text); }
    // The check state of each button from the check box to the three radios, as "2001".
    std::wstring Checks() {
        std::wstring checks;
        for (int id : {IDC_FW_CHECK, IDC_FW_RADIO_FIRST, IDC_FW_RADIO_SECOND, IDC_FW_RADIO_THIRD})
            checks += std::to_wstring(SendMessageW(Item(id), BM_GETCHECK, 0, 0));
        return checks;
    }
    std::wstring Texts() {
        return TextOf(Item(IDC_FW_INT)) + L"|" + TextOf(Item(IDC_FW_UINT)) + L"|" + TextOf(Item(IDC_FW_TEXT));
    }

    ScriptedDialog dialog_{IDD_FRAMEWORK_FIELDS};
    Members m_;
};

// Loading checks nothing; a check state a check box does not have shows as clear, and the static
// between the second and third radio button is no member of the group.
TEST_F(DataExchangeTest, LoadingPutsEachMemberIntoItsControlAndSavingTakesItBack) {
    ASSERT_TRUE(dialog_.Create(nullptr));
    const struct {
        Members loaded;
        const wchar_t* checks;
        const wchar_t* texts;
    } loads[] = {
        {{2, 2, -5, 4294967295u, L"Qor"}, L"2001", L"-5|4294967295|Qor"},
        {{7, -1, 0, 10, L""}, L"0000", L"0|10|"},
    };
    for (const auto& l : loads) {
        m_ = l.loaded;
        dialog_.UpdateData(false);
        EXPECT_EQ(l.checks, Checks());
        EXPECT_EQ(l.texts, Texts());
    }
    const struct {
        int checkedRadio;  // 0: none
        int32_t radio;
    } radios[] = {{0, -1}, {IDC_FW_RADIO_FIRST, 0}, {IDC_FW_RADIO_SECOND, 1}, {IDC_FW_RADIO_THIRD, 2}};
    for (const auto& r : radios) {
        CheckRadioButton(dialog_.hwnd(), IDC_FW_RADIO_FIRST, IDC_FW_RADIO_THIRD, r.checkedRadio);
        CheckDlgButton(dialog_.hwnd(), IDC_FW_AFTER_RADIOS, BST_CHECKED);
        CheckDlgButton(dialog_.hwnd(), IDC_FW_CHECK, BST_CHECKED);
        Type(IDC_FW_INT, L" +50 ");
        Type(IDC_FW_UINT, L"5000000");
        Type(IDC_FW_TEXT, L"typed");
        ASSERT_TRUE(dialog_.UpdateData(true));
        EXPECT_EQ((Members{1, r.radio, 50, 5000000u, L"typed"}), m_) << r.radio;
    }
    EXPECT_TRUE(shown().empty());
}

TEST_F(DataExchangeTest, OKStaysOpenUntilEveryFieldIsAccepted) {
    dialog_.init = [this] {
        SetWindowTextW(Item(IDC_FW_INT), L"99");
        PostMessageW(dialog_.hwnd(), WM_COMMAND, IDOK, 0);  // refused: the dialog stays
        dialog_.timer = [this](UINT_PTR) {
            KillTimer(dialog_.hwnd(), 1);
            SetWindowTextW(Item(IDC_FW_INT), L"49");
            PostMessageW(dialog_.hwnd(), WM_COMMAND, IDOK, 0);
        };
        SetTimer(dialog_.hwnd(), 1, 50, nullptr);
    };
    EXPECT_EQ(IDOK, dialog_.DoModal(nullptr));
    EXPECT_EQ((std::vector<std::wstring>{L"init", L"ok", L"timer 1", L"ok"}), dialog_.seen);
    EXPECT_EQ(49, m_.number);
    EXPECT_EQ((std::vector<platform::fake::ShownMessage>{{L"Please enter an integer between -5 and 50.", 0}}), shown());
}

}  // namespace

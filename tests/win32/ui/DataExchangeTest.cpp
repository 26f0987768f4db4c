// Data exchange between a dialog's controls and its members, both ways, and the refusal of fields
// that do not hold what their member needs.
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
    double ratio = 0;
    int32_t comboIndex = -1;
    std::wstring comboText;
    bool operator==(const Members&) const = default;
};

void PrintTo(const Members& m, std::ostream* out) {
    *out << "{" << m.check << ", " << m.radio << ", " << m.number << ", " << m.count << ", "
         << testing::PrintToString(m.text) << ", " << m.ratio << ", " << m.comboIndex << ", "
         << testing::PrintToString(m.comboText) << "}";
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
            DDV_MaxChars(dx, m_.text, 8);
            DDX_Text(dx, IDC_FW_DOUBLE, m_.ratio);
            DDX_CBIndex(dx, IDC_FW_COMBO, m_.comboIndex);
            DDX_Text(dx, IDC_FW_COMBO_TEXT, m_.comboText);
            DDV_MaxChars(dx, m_.comboText, 80);
        };
        dialog_.init = [this] {
            for (const wchar_t* entry : {L"Zero", L"One", L"Two"})
                SendMessageW(Item(IDC_FW_COMBO), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
        };
    }

    // Shown only where the focus matters: a dialog that goes away takes seconds under Wine.
    void Open(bool shown) {
        ASSERT_TRUE(dialog_.Create(nullptr));
        if (!shown) return;
        ShowWindow(dialog_.hwnd(), SW_SHOW);
        SetForegroundWindow(dialog_.hwnd());
    }

    HWND Item(int id) { return dialog_.Item(id); }
    void Type(int id, const wchar_t* text) { SetWindowTextW(Item(id), text); }
    bool Checked(int id) { return SendMessageW(Item(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    ScriptedDialog dialog_{IDD_FRAMEWORK_FIELDS};
    Members m_;
};

TEST_F(DataExchangeTest, LoadingPutsEachMemberIntoItsControl) {
    Open(false);
    m_ = {2, 2, -5, 4294967295u, L"Qor", 0.25, 1, L"yyyy/MM/dd"};
    dialog_.UpdateData(false);
    EXPECT_EQ(BST_INDETERMINATE, SendMessageW(Item(IDC_FW_CHECK), BM_GETCHECK, 0, 0));
    // The static between the second and third button is no member of the group.
    EXPECT_FALSE(Checked(IDC_FW_RADIO_FIRST));
    EXPECT_FALSE(Checked(IDC_FW_RADIO_SECOND));
    EXPECT_TRUE(Checked(IDC_FW_RADIO_THIRD));
    EXPECT_EQ(L"-5", TextOf(Item(IDC_FW_INT)));
    EXPECT_EQ(L"4294967295", TextOf(Item(IDC_FW_UINT))) << "loading checks nothing";
    EXPECT_EQ(L"Qor", TextOf(Item(IDC_FW_TEXT)));
    EXPECT_EQ(8, SendMessageW(Item(IDC_FW_TEXT), EM_GETLIMITTEXT, 0, 0)) << "the limit holds for typing";
    EXPECT_EQ(L"0.25", TextOf(Item(IDC_FW_DOUBLE)));
    EXPECT_EQ(1, SendMessageW(Item(IDC_FW_COMBO), CB_GETCURSEL, 0, 0));
    EXPECT_EQ(L"yyyy/MM/dd", TextOf(Item(IDC_FW_COMBO_TEXT)));

    m_.check = 7;  // not a state a check box has
    m_.radio = -1;
    m_.comboIndex = -1;
    dialog_.UpdateData(false);
    EXPECT_EQ(BST_UNCHECKED, SendMessageW(Item(IDC_FW_CHECK), BM_GETCHECK, 0, 0));
    EXPECT_FALSE(Checked(IDC_FW_RADIO_THIRD));
    EXPECT_EQ(-1, SendMessageW(Item(IDC_FW_COMBO), CB_GETCURSEL, 0, 0));
}

TEST_F(DataExchangeTest, SavingTakesEachControlBack) {
    Open(false);
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
        Type(IDC_FW_TEXT, L"12345678");
        Type(IDC_FW_DOUBLE, L"1e3");
        SendMessageW(Item(IDC_FW_COMBO), CB_SETCURSEL, 2, 0);
        Type(IDC_FW_COMBO_TEXT, L"HH:mm");
        ASSERT_TRUE(dialog_.UpdateData(true));
        EXPECT_EQ((Members{1, r.radio, 50, 5000000u, L"12345678", 1000.0, 2, L"HH:mm"}), m_) << r.radio;
    }
    EXPECT_TRUE(shown().empty());
}

TEST_F(DataExchangeTest, ARefusedFieldIsToldFocusedAndLeftAsItWas) {
    Open(true);
    const struct {
        int control;
        const wchar_t* typed;
        const wchar_t* message;
    } cases[] = {
        {IDC_FW_INT, L"12a", L"Please enter an integer."},
        {IDC_FW_INT, L"", L"Please enter an integer."},
        {IDC_FW_INT, L"2147483648", L"Please enter an integer."},
        {IDC_FW_INT, L"51", L"Please enter an integer between -5 and 50."},
        {IDC_FW_INT, L"-6", L"Please enter an integer between -5 and 50."},
        {IDC_FW_UINT, L"-1", L"Please enter a positive integer."},
        {IDC_FW_UINT, L"9", L"Please enter an integer between 10 and 5000000."},
        {IDC_FW_UINT, L"5000001", L"Please enter an integer between 10 and 5000000."},
        {IDC_FW_TEXT, L"123456789", L"Please enter no more than 8 characters."},
        {IDC_FW_DOUBLE, L"1,5", L"Please enter a number."},
    };
    const Members before{1, 0, 7, 100u, L"before", 0.5, 0, L"later"};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.typed));
        m_ = before;
        dialog_.UpdateData(false);
        fake_.prompts().Clear();
        SetFocus(Item(IDC_FW_CHECK));
        Type(IDC_FW_COMBO_TEXT, L"not taken");  // the last field: the exchange stops before it
        Type(c.control, c.typed);

        EXPECT_FALSE(dialog_.UpdateData(true));
        EXPECT_EQ((std::vector<platform::fake::ShownMessage>{{c.message, 0}}), shown());
        EXPECT_EQ(before, m_);
        EXPECT_EQ(Item(c.control), GetFocus());
        DWORD start = 0, end = 0;
        SendMessageW(Item(c.control), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(0u, start);
        EXPECT_EQ(wcslen(c.typed), end) << "the whole text is selected";
    }
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
    ASSERT_EQ(1u, shown().size());
    EXPECT_EQ(L"Please enter an integer between -5 and 50.", shown()[0].text);
}

}  // namespace

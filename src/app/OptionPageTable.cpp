#include "app/OptionPageTable.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const wchar_t* kGeneralHelp = L"7.Option/00.html";

constexpr OptionTreeRow kRows[] = {
    {0, 1401, 0, 1007, nullptr, 0, kGeneralHelp},
    {1, 1401, 8, 1000, nullptr, 0, kGeneralHelp},
    {2, 1401, 1, 26, L"COptionColorGridDlg", 198, L"7.Option/1.General/01.html"},
    {2, 1401, 5, 12, L"COptionSkinDlg", 104, L"7.Option/1.General/03.html"},
    {2, 1401, 9, 37, L"COptionOverallStyleDlg", 169, L"7.Option/1.General/08.html"},
    {1, 1401, 2, 20, L"COptionAppInfoDlg", 109, L"7.Option/1.General/02.html"},
    {1, 1401, 3, 24, L"COptionCommonUIDlg", 196, L"7.Option/1.General/04.html"},
    {1, 1401, 4, 30, L"COptionNetworkDlg", 165, L"7.Option/1.General/05.html"},
    {1, 1401, 6, 32, L"COptionInclimentalSerchDlg", 210, L"7.Option/1.General/06.html"},
    {1, 1401, 7, 34, L"COptionVersionCheckDlg", 129, L"7.Option/1.General/07.html"},
    {1, 1401, 10, 45, L"COptionScreenSaverDlg", 220, L"7.Option/1.General/09.html"},
    {0, 1402, 0, 1001, nullptr, 0, kGeneralHelp},
    {1, 1402, 12, 1008, nullptr, 0, kGeneralHelp},
    {2, 1402, 9, 35, L"COptionListInitDlg", 167, L"7.Option/2.List/09.html"},
    {2, 1402, 10, 36, L"COptionFolderSettingDlg", 168, L"7.Option/2.List/10.html"},
    {2, 1402, 1, 3, L"COptionListStyleDlg", 110, L"7.Option/2.List/01.html"},
    {2, 1402, 2, 29, L"COptionListModeStyleDlg", 113, L"7.Option/2.List/07.html"},
    {2, 1402, 3, 28, L"COptionListStateDlg", 114, L"7.Option/2.List/06.html"},
    {1, 1402, 13, 1009, nullptr, 0, kGeneralHelp},
    {2, 1402, 11, 17, L"COptionIcon", 140, L"7.Option/2.List/11.html"},
    {2, 1402, 7, 9, L"COptionThumbDlg", 122, L"7.Option/2.List/04.html"},
    {1, 1402, 4, 13, L"COptionListActionDlg", 111, L"7.Option/2.List/02.html"},
    {1, 1402, 19, 44, L"COptionListAddressbarDlg", 219, L"7.Option/2.List/16.html"},
    {1, 1402, 14, 38, L"COptionListBarDlg", 170, L"7.Option/2.List/12.html"},
    {1, 1402, 5, 27, L"COptionListAutoUpdateDlg", 112, L"7.Option/2.List/05.html"},
    {1, 1402, 15, 41, L"COptionDivListDlg", 216, L"7.Option/2.List/13.html"},
    {1, 1402, 8, 33, L"COptionCustomSort", 128, L"7.Option/2.List/08.html"},
    {1, 1402, 6, 1010, nullptr, 0, kGeneralHelp},
    {2, 1402, 16, 4, L"COptionMouseActionDlg", 115, L"7.Option/2.List/03.html"},
    {2, 1402, 17, 42, L"COptionMouseAction2Dlg", 217, L"7.Option/2.List/14.html"},
    {2, 1402, 18, 43, L"COptionMouseAction3Dlg", 218, L"7.Option/2.List/15.html"},
    {0, 1403, 0, 1002, nullptr, 0, kGeneralHelp},
    {1, 1403, 7, 31, L"COptionTabCommonDlg", 127, L"7.Option/3.Bar/01.html"},
    {2, 1403, 1, 8, L"COptionTabStyleDlg", 121, L"7.Option/3.Bar/01_1.html"},
    {1, 1403, 2, 10, L"COptionTreeInfoDlg", 123, L"7.Option/3.Bar/02.html"},
    {1, 1403, 3, 6, L"COptionPreviewDlg", 117, L"7.Option/3.Bar/03.html"},
    {1, 1403, 4, 7, L"COptionRecentDlg", 120, L"7.Option/3.Bar/04.html"},
    {1, 1403, 5, 11, L"COptionUserBarDlg", 126, L"7.Option/3.Bar/07.html"},
    {0, 1404, 0, 1003, nullptr, 0, kGeneralHelp},
    {1, 1404, 1, 2, L"COptionKeySetDlg", 105, L"7.Option/4.Interface/01.html"},
    {1, 1404, 2, 14, L"COptionMouseGestureDlg", 107, L"7.Option/4.Interface/02.html"},
    {1, 1404, 3, 23, L"COptionCmdDefDlg", 164, L"7.Option/4.Interface/03_2.html"},
    {1, 1404, 4, 25, L"COptionExCmdDlg", 197, L"7.Option/4.Interface/05.html"},
    {1, 1404, 5, 21, L"COptionExToolDlg", 162, L"7.Option/4.Interface/03.html"},
    {1, 1404, 6, 22, L"COptionMenuDlg", 163, L"7.Option/4.Interface/04.html"},
    {1, 1404, 7, 40, L"COptionContextMenuDlg", 199, L"7.Option/4.Interface/06.html"},
    {0, 1405, 0, 1004, nullptr, 0, kGeneralHelp},
    {1, 1405, 1, 5, L"COptionOtherDlg", 116, L"7.Option/5.Other/01.html"},
    {1, 1405, 3, 18, L"COptionEventDlg", 142, L"7.Option/5.Other/02.html"},
    {1, 1405, 2, 19, L"COptionSoundDlg", 141, L"7.Option/5.Other/03.html"},
    {1, 1405, 4, 39, L"COptionMessageDlg", 214, L"7.Option/5.Other/04.html"},
};

// Two pages have no tree item, so nothing leads to them; they still belong to the dialog.
constexpr OptionPageInfo kPagesWithoutItem[] = {
    {15, L"COptionTabManage", 124},
    {16, L"COptionItemClip", 125},
};

constexpr int kLabelCounts[] = {11, 20, 9, 8, 5};

std::vector<OptionPageInfo> CollectPages() {
    std::vector<OptionPageInfo> pages;
    for (const OptionTreeRow& row : kRows) {
        if (row.pageClass) pages.push_back({row.id, row.pageClass, row.templateId});
    }
    pages.insert(pages.end(), std::begin(kPagesWithoutItem), std::end(kPagesWithoutItem));
    return pages;
}

}  // namespace

std::span<const OptionTreeRow> OptionTreeRows() {
    return kRows;
}

std::span<const OptionPageInfo> OptionPages() {
    static const std::vector<OptionPageInfo> pages = CollectPages();
    return pages;
}

int RequiredLabelCount(int labelList) {
    if (labelList < kFirstLabelList || labelList > kLastLabelList) return 0;
    return kLabelCounts[labelList - kFirstLabelList];
}

std::wstring HelpPathOf(int id) {
    for (const OptionTreeRow& row : kRows) {
        if (row.id == id && row.pageClass) return row.helpPath;
    }
    return kGeneralHelp;
}

int GroupTextControlOf(int id) {
    if (id >= 1000 && id <= 1010) return kFirstGroupTextControl + (id - 1000);
    return kFirstGroupTextControl;
}

bool IsPageId(int id) {
    auto pages = OptionPages();
    return std::any_of(pages.begin(), pages.end(), [id](const OptionPageInfo& page) { return page.id == id; });
}

bool AddTreeItems(int labelList, const std::vector<std::wstring>& labels, std::vector<OptionTreeItem>& items) {
    if (static_cast<int>(labels.size()) != RequiredLabelCount(labelList)) return false;
    // The last item inserted at each level is the parent of the next one a level deeper.
    std::vector<int> lastAtLevel;
    for (const OptionTreeRow& row : kRows) {
        if (row.labelList != labelList) continue;
        lastAtLevel.resize(row.level + 1);
        int parent = row.level == 0 ? -1 : lastAtLevel[row.level - 1];
        lastAtLevel[row.level] = static_cast<int>(items.size());
        items.push_back({labels[row.labelIndex], row.id, parent});
    }
    return true;
}

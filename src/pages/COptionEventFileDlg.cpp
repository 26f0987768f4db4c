#include "pages/COptionEventFileDlg.h"

#include "app/AppServices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "ui/ControlText.h"

namespace {

constexpr int kColumnWidth = 200;

}  // namespace

COptionEventFileDlg::COptionEventFileDlg(int templateId, AppServices& app, const EventFileRows& rows)
    : OptionPage(templateId, app), rows_(rows) {}

bool COptionEventFileDlg::LoadGroups() {
    LoadGroup(app().store, rows_.group);
    list_ = ui::ListView(Item(IDC_EVENT_FILE_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    std::vector<std::wstring> headers;
    std::vector<std::wstring> labels;
    ui::SplitControlText(Item(IDC_EVENT_FILE_HEADERS), headers);
    ui::SplitControlText(Item(IDC_EVENT_FILE_ROWS), labels);
    // A translation with the wrong number of parts leaves the list empty; the page still opens.
    if (!CheckLabelCount(2, headers, IDC_EVENT_FILE_HEADERS)) return true;
    if (!CheckLabelCount(static_cast<int>(rows_.values.size()), labels, IDC_EVENT_FILE_ROWS)) return true;
    list_.InsertColumn(0, headers[0], kColumnWidth);
    list_.InsertColumn(1, headers[1], kColumnWidth);
    const std::vector<std::wstring> files = RowFiles(app().store, rows_);
    for (size_t row = 0; row < files.size(); ++row) {
        list_.InsertItem(static_cast<int>(row), labels[row]);
        list_.SetItemText(static_cast<int>(row), 1, files[row]);
    }
    return true;
}

int COptionEventFileDlg::SelectedRow() const {
    const int row = list_.GetSelectedRow();
    if (row < 0) platform::Current().prompts.ShowMessage(app().messages.Get(kMsgNothingSelected), platform::kStyleOk);
    return row;
}

void COptionEventFileDlg::ChooseFile() const {
    const int row = SelectedRow();
    if (row < 0) return;
    const std::wstring folder = EventFileFolder(rows_, app().directories);
    std::wstring name = list_.GetItemText(row, 1);
    if (name.empty()) name = rows_.pattern;
    const platform::FolderChoice choice =
        platform::Current().prompts.ChooseFileToOpen(L"", rows_.filter, folder + name);
    if (!choice.confirmed || choice.path.empty()) return;
    const std::optional<std::wstring> accepted = AcceptedRowFile(folder, choice.path);
    if (!accepted) {
        platform::Current().prompts.ShowMessage(ui::ControlText(Item(IDC_EVENT_FILE_OUTSIDE)), platform::kStyleOk);
        return;
    }
    list_.SetItemText(row, 1, *accepted);
}

void COptionEventFileDlg::ClearFile() const {
    const int row = SelectedRow();
    if (row >= 0) list_.SetItemText(row, 1, L"");
}

bool COptionEventFileDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id == IDC_EVENT_FILE_CHOOSE) {
        ChooseFile();
        return true;
    }
    if (id == IDC_EVENT_FILE_CLEAR) {
        ClearFile();
        return true;
    }
    return false;
}

std::optional<LRESULT> COptionEventFileDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_EVENT_FILE_LIST || header.code != NM_DBLCLK) return std::nullopt;
    ChooseFile();
    return 0;
}

bool COptionEventFileDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    std::vector<std::wstring> files;
    for (int row = 0; row < list_.GetItemCount(); ++row) files.push_back(list_.GetItemText(row, 1));
    SetRowFiles(app().store, rows_, files);
    SaveGroup(app().store, rows_.group);
    changes.Record(rows_.changeCode);
    return true;
}

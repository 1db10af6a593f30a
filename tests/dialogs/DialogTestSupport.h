#pragma once
// What the dialog tests share: modal runs answered by a script, desktop services answered from
// lists, and the texts in which the tests compare message boxes, lists and file requests.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QAction>
#include <QComboBox>
#include <QMenu>

#include "TestSupport.h"
#include "dialogs/DialogServices.h"
#include "dialogs/Ndd2QfxDlg.h"
#include "dialogs/forms/ControlIds.h"
#include "ui/MessageBox.h"
#include "ui/QtApi.h"
#include "ui/UiDialog.h"
#include "ui/UiListCtrl.h"

// A dialog's modal run opens the form as the toolkit would, then hands the dialog to the next
// script in place of a person, and returns the result with which the script ended the form.
class ScriptedModals : public CQtApi {
  public:
    using Script = std::function<void(CUiDialog&)>;
    explicit ScriptedModals(std::vector<Script> scripts) : m_scripts(std::move(scripts)) {
        SetUiApi(this);
    }
    ~ScriptedModals() override { SetUiApi(nullptr); }
    ScriptedModals(const ScriptedModals&) = delete;
    ScriptedModals& operator=(const ScriptedModals&) = delete;

    int RunModal(QWidget* form) override {
        auto* dialog = dynamic_cast<CUiDialog*>(CUiWnd::FromHandle(form));
        if (!dialog || m_next >= m_scripts.size()) return -1;
        QWidget* outer = m_running;
        m_running = form;
        m_result = -1;
        dialog->OnInitDialog();
        m_scripts[m_next++](*dialog);
        m_running = outer;
        return m_result;
    }
    void EndForm(QWidget* form, int result) override {
        if (form == m_running) m_result = result;
        CQtApi::EndForm(form, result);
    }
    size_t Ran() const { return m_next; }

  private:
    std::vector<Script> m_scripts;
    size_t m_next = 0;
    QWidget* m_running = nullptr;
    int m_result = -1;
};

// Desktop services whose file chooser and colour picker take their answers in turn from the
// two lists ("" and -1 cancel) and whose popup menu picks the entry captioned menuChoice; file
// requests, opened pages and the status of the process's end are kept.
struct AnsweredServices {
    std::vector<std::string> files;
    std::vector<int> colours;
    std::string menuChoice;
    std::vector<FileRequest> requests;
    std::vector<std::string> urls;
    int endStatus = -1;

    DialogServices Make() {
        DialogServices s = DesktopServices();
        s.chooseFile = [this](QWidget*, const FileRequest& request) {
            requests.push_back(request);
            return Take(files, std::string());
        };
        s.chooseNetColor = [this](QWidget*, int& colour) {
            int chosen = Take(colours, -1);
            if (chosen >= 0) colour = chosen;
            return chosen >= 0;
        };
        s.popupMenu = [this](QMenu& menu) -> QAction* {
            for (QAction* a : menu.actions())
                if (a->text().toStdString() == menuChoice) return a;
            return nullptr;
        };
        s.openUrl = [this](const std::string& url) {
            urls.push_back(url);
            return true;
        };
        s.endProcess = [this](int status) { endStatus = status; };
        s.someoneAnswers = [] { return true; };
        return s;
    }
    // "open|save title|filter|extension" of each request.
    std::vector<std::string> Requests() const {
        std::vector<std::string> texts;
        for (const FileRequest& r : requests)
            texts.push_back(std::string(r.save ? "save " : "open ") + r.title + "|" + r.filter +
                            "|" + r.defaultExtension);
        return texts;
    }

  private:
    template <class T>
    static T Take(std::vector<T>& list, T none) {
        if (list.empty()) return none;
        T first = list.front();
        list.erase(list.begin());
        return first;
    }
};

inline void Press(CUiDialog& d, int id) {
    d.OnCmdMsg(static_cast<unsigned>(id), kCodeClicked, nullptr, false);
}

inline std::vector<std::string> Texts(const CMessageBoxAnswers& boxes) {
    std::vector<std::string> texts;
    for (const ShownMessageBox& box : boxes.Shown()) texts.push_back(box.text);
    return texts;
}

// "text:image" of every row of a list.
inline std::vector<std::string> Rows(const CUiListCtrl* list) {
    std::vector<std::string> rows;
    for (int r = 0; r < list->GetItemCount(); ++r)
        rows.push_back(list->GetItemText(r, 0).toStdString() + ":" +
                       std::to_string(list->GetItemImage(r)));
    return rows;
}

// "cell|...|cell|x" of every row of a list: columns first to last, then x or - for its check.
inline std::vector<std::string> CheckedRows(const CUiListCtrl* list, int first, int last) {
    std::vector<std::string> rows;
    for (int r = 0; r < list->GetItemCount(); ++r) {
        std::string row;
        for (int c = first; c <= last; ++c) row += list->GetItemText(r, c).toStdString() + "|";
        rows.push_back(row + (list->GetCheck(r) ? "x" : "-"));
    }
    return rows;
}

// The main window over the answered services, with its input and output named.
inline std::unique_ptr<CNdd2QfxDlg> OpenMainDialog(AnsweredServices& answers,
                                                   const std::string& input = "",
                                                   const std::string& output = "") {
    auto dialog = std::make_unique<CNdd2QfxDlg>(answers.Make());
    dialog->Create(IDD_Ndd2Qfx_DIALOG);
    if (!input.empty()) dialog->SetDlgItemText(IDC_EDIT_INPUT, input);
    if (!output.empty()) dialog->SetDlgItemText(IDC_EDIT_OUTPUT, output);
    return dialog;
}

// Copies files of examples/ into dir; the path of the first.
inline std::string CopyExamples(const testing_support::ScratchDir& dir,
                                std::initializer_list<const char*> names) {
    std::string first;
    for (const char* name : names) {
        std::string path = dir.Write(
            name, testing_support::ReadFile(std::string(NDD2QFX_SOURCE_DIR "/examples/") + name));
        if (first.empty()) first = path;
    }
    return first;
}

// The group selector of the pin mapping dialog answered: each of the four references takes
// the first group its list offers, then OK.
inline void ChooseGroups(CUiDialog& selector) {
    for (int id :
         {IDC_COMBO_PULL_UP, IDC_COMBO_POWER_CLAMP, IDC_COMBO_PULL_DOWN, IDC_COMBO_GROUND_CLAMP})
        qobject_cast<QComboBox*>(selector.GetDlgItem(id)->GetHandle())->setCurrentIndex(1);
    Press(selector, IDOK);
}

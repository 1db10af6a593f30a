#pragma once
// Modal runs answered by the test: a dialog's modal run opens the form as the toolkit would,
// then hands the dialog to the next script in place of a person, and returns the result with
// which the script ended the form. File choosers and the colour picker answer from lists.
#include <functional>
#include <string>
#include <vector>

#include "dialogs/DialogServices.h"
#include "ui/QtApi.h"
#include "ui/UiDialog.h"

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
// two lists ("" and -1 cancel); every file request is kept.
struct AnsweredServices {
    std::vector<std::string> files;
    std::vector<int> colours;
    std::vector<FileRequest> requests;

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
        s.endProcess = [](int) {};
        s.someoneAnswers = [] { return true; };
        return s;
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

#pragma once
// The UI interface over Qt widgets.
#include "ui/UiApi.h"

class CQtApi : public IUiApi {
  public:
    QWidget* CreateFormWidget(const char* className, QWidget* parent, bool modal,
                              int templateId) override;
    IQtForm* GetForm(QWidget* form) override;
    QWidget* GetFormControl(QWidget* form, int id) override;
    std::vector<int> GetFormControlIds(QWidget* form) override;
    int RunModal(QWidget* form) override;
    void EndForm(QWidget* form, int result) override;
    void DestroyForm(QWidget* form) override;
    void SetMouseTracking(QWidget* form, bool on) override;
    void SetCommandTarget(QWidget* form, CCmdTargetBase* target) override;
    void InstallComboBoxFilter(QWidget* combo, CCmdTargetBase* target, int id) override;
    bool PreTranslateMessage(CCmdTargetBase* target, unsigned message, WPARAM wParam,
                             LPARAM lParam) override;
    int MessageBox(const std::string& title, const std::string& text, int type) override;
};

#pragma once
// The message filter of a combo box whose list opening and closing have handlers: the list's
// showing and hiding reach the chain as the commands of codes 7 and 8.
#include <QObject>

class CCmdTargetBase;
class QComboBox;

class _QComboBoxMsgEx : public QObject {
  public:
    _QComboBoxMsgEx(QComboBox* combo, CCmdTargetBase* target, int id);
    bool eventFilter(QObject* watched, QEvent* e) override;

  private:
    CCmdTargetBase* m_pTarget;
    int m_nID;
};

#include "dialogs/ListNotify.h"

#include "ui/CmdTarget.h"
#include "ui/UiListCtrl.h"

namespace {

void Send(CUiListCtrl& list, int id, CCmdTargetBase& target, int code, int row, int column,
          const QPoint& point) {
    NMLISTVIEW notify;
    notify.hdr.hwndFrom = &list;
    notify.hdr.idFrom = static_cast<std::uintptr_t>(id);
    notify.hdr.code = code;
    notify.iItem = row;
    notify.iSubItem = column;
    notify.ptAction = CPoint{point.x(), point.y()};
    target.OnWndMsg(kMsgNotify, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&notify));
}

}  // namespace

void RouteListNotifications(CUiListCtrl& list, int id, CCmdTargetBase& target) {
    CUiListCtrl* source = &list;
    CCmdTargetBase* to = &target;
    QObject::connect(source, &CUiListCtrl::itemStateChanged, source, [source, id, to](int row) {
        Send(*source, id, *to, kNotifyItemChanged, row, 0, QPoint());
    });
    QObject::connect(source, &CUiListCtrl::itemClicked, source,
                     [source, id, to](int row, int column, const QPoint& point) {
                         Send(*source, id, *to, kNotifyClick, row, column, point);
                     });
}

#pragma once
// List controls report to the handler chain of their dialog as notifications (message 78):
// a row whose state changed (kNotifyItemChanged) and a click on a row (kNotifyClick). The
// notification names the row, as a list view's notification does.
#include "ui/UiTypes.h"

class CCmdTargetBase;
class CUiListCtrl;

struct NMLISTVIEW {
    NMHDR hdr;
    int iItem = -1;    // the row, -1 for none
    int iSubItem = 0;  // the column of a click
    CPoint ptAction;   // where a click hit, in the list's viewport
};

// Routes the notifications of list, control id, to target for as long as the list lives.
void RouteListNotifications(CUiListCtrl& list, int id, CCmdTargetBase& target);

#pragma once
// A recorded session drives the windows: it sees and answers message boxes and dialogs even on
// a platform with no screen, so they are shown as to a person instead of being answered as a
// batch run answers them.
namespace ui {

void SetSessionDriven(bool driven);
bool SessionDriven();

}  // namespace ui

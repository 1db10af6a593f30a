#pragma once
// The word types, message numbers and notification codes of the message-map layer. They keep
// the values the dialogs were written against, so handler tables read the same on every
// platform.
#include <cstdint>

using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

// Messages.
constexpr unsigned kMsgPaint = 15;
constexpr unsigned kMsgNotify = 78;
constexpr unsigned kMsgCommand = 273;
constexpr unsigned kMsgMouseMove = 512;
constexpr unsigned kMsgIdleUpdateCmdUI = 867;
constexpr unsigned kMsgKickIdle = 874;
constexpr unsigned kMsgUpdateCommandUI = 48401;

// Notification codes of commands (message 273) and notifications (message 78).
constexpr int kCodeClicked = 0;  // a button press, a menu choice: a plain command
constexpr int kCodeSelChange = 1;
constexpr int kCodeDblClk = 2;
constexpr int kCodeDropDown = 7;
constexpr int kCodeCloseUp = 8;
constexpr int kCodeEditChange = 0x300;
constexpr int kCodeUpdateCommandUI = -1;
constexpr int kNotifyClick = -2;
constexpr int kNotifyDblClk = -3;
constexpr int kNotifyItemChanged = -101;
constexpr int kNotifyColumnClick = -108;

// The identifiers of the OK and Cancel controls, and the results of a form ended by them.
constexpr int kIdOk = 1;
constexpr int kIdCancel = 2;

struct CPoint {
    int x = 0;
    int y = 0;
};

// The head of a notification (message 78): which control, and what happened.
struct NMHDR {
    void* hwndFrom = nullptr;
    std::uintptr_t idFrom = 0;
    int code = 0;
};

inline unsigned LoWord(WPARAM w) {
    return static_cast<unsigned>(w & 0xFFFF);
}
inline unsigned HiWord(WPARAM w) {
    return static_cast<unsigned>((w >> 16) & 0xFFFF);
}
inline WPARAM MakeWParam(unsigned low, unsigned high) {
    return static_cast<WPARAM>((low & 0xFFFF) | ((high & 0xFFFFu) << 16));
}
inline LPARAM MakeLParam(int low, int high) {
    std::uint32_t word = (static_cast<std::uint32_t>(low) & 0xFFFFu) |
                         ((static_cast<std::uint32_t>(high) & 0xFFFFu) << 16);
    return static_cast<LPARAM>(word);
}
// A point packed into a word as two 16-bit signed values.
inline CPoint PointFromLParam(LPARAM l) {
    return CPoint{static_cast<std::int16_t>(l & 0xFFFF),
                  static_cast<std::int16_t>((l >> 16) & 0xFFFF)};
}

#include "ui/CmdTarget.h"

#include <mutex>

#include "ui/UiApi.h"

namespace {

std::mutex g_lastCommandLock;
std::string g_strLastCommand;
thread_local const CurrentMessage* t_pCurrentMessage = nullptr;

// "&CX::OnFoo" is kept as "OnFoo"; a name written otherwise is kept whole.
void RecordLastCommand(const char* name) {
    std::string text = name ? name : "";
    if (!text.empty() && text[0] == '&') {
        size_t colons = text.find("::");
        if (colons != std::string::npos) text = text.substr(colons + 2);
    }
    std::lock_guard<std::mutex> lock(g_lastCommandLock);
    g_strLastCommand = text;
}

// Keeps the message being dispatched for the length of one dispatch.
class MessageFrame {
  public:
    MessageFrame(unsigned message, WPARAM wParam, LPARAM lParam)
        : frame_{message, wParam, lParam, t_pCurrentMessage} {
        t_pCurrentMessage = &frame_;
    }
    ~MessageFrame() { t_pCurrentMessage = frame_.outer; }
    MessageFrame(const MessageFrame&) = delete;
    MessageFrame& operator=(const MessageFrame&) = delete;

  private:
    CurrentMessage frame_;
};

}  // namespace

void CHandlerChain::Link(const CClassFunctionCall* baseHead) {
    for (size_t i = 0; i + 1 < entries_.size(); ++i) entries_[i]->next = entries_[i + 1].get();
    if (!entries_.empty()) entries_.back()->next = baseHead;
    head_ = entries_.empty() ? baseHead : entries_.front().get();
}

std::string LastCommandName() {
    std::lock_guard<std::mutex> lock(g_lastCommandLock);
    return g_strLastCommand;
}

void ResetLastCommandName() {
    std::lock_guard<std::mutex> lock(g_lastCommandLock);
    g_strLastCommand.clear();
}

const CurrentMessage* GetCurrentMessage() {
    return t_pCurrentMessage;
}

bool CCmdTargetBase::OnCmdMsg(unsigned id, int code, void* arg, bool testOnly) {
    for (const CClassFunctionCall* e = GetChainHead(); e; e = e->next) {
        if (e->message != kMsgCommand && e->message != kMsgUpdateCommandUI) continue;
        if (!e->TakesId(static_cast<int>(id)) || e->code != code) continue;
        if (testOnly) return true;
        if (e->message == kMsgCommand && code == kCodeClicked) RecordLastCommand(e->name);
        HandlerArgs args;
        args.id = id;
        args.arg = arg;
        if (e->message == kMsgUpdateCommandUI) args.cmdUI = static_cast<CCmdUI*>(arg);
        e->Call(*this, args);
        return true;
    }
    return false;
}

bool CCmdTargetBase::OnWndMsg(unsigned message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    MessageFrame frame(message, wParam, lParam);
    if (UiApi().PreTranslateMessage(this, message, wParam, lParam)) return true;
    // A command travels as a message with its identifier and code in wParam.
    if (message == kMsgCommand)
        return OnCmdMsg(LoWord(wParam), static_cast<std::int16_t>(HiWord(wParam)),
                        reinterpret_cast<void*>(lParam), false);
    for (const CClassFunctionCall* e = GetChainHead(); e; e = e->next)
        if (e->message == message && DispatchEntry(*e, message, wParam, lParam, result))
            return true;
    return false;
}

bool CCmdTargetBase::DispatchEntry(const CClassFunctionCall& e, unsigned message, WPARAM wParam,
                                   LPARAM lParam, LRESULT* result) {
    HandlerArgs args;
    args.wParam = wParam;
    args.lParam = lParam;
    LRESULT ignored = 0;
    args.result = result ? result : &ignored;
    if (message == kMsgUpdateCommandUI) {
        if (!e.TakesId(0) || e.code != static_cast<int>(HiWord(wParam)) ||
            e.signature != kSigCommandBool)
            return false;
        args.cmdUI = reinterpret_cast<CCmdUI*>(lParam);
    } else if (message == kMsgNotify) {
        args.notify = reinterpret_cast<NMHDR*>(lParam);
        if (!args.notify || e.signature != kSigNotify ||
            !e.TakesId(static_cast<int>(args.notify->idFrom)) || e.code != args.notify->code)
            return false;
    } else if (e.signature == kSigUpdate) {
        args.cmdUI = reinterpret_cast<CCmdUI*>(lParam);
    } else if (e.signature != kSigWordLong && e.signature != kSigNoArgument &&
               e.signature != kSigPoint && e.signature != kSigWordsPoint &&
               e.signature != kSigWord32) {
        return false;
    }
    LRESULT value = e.Call(*this, args);
    if (e.signature == kSigWordLong) *args.result = value;
    if (e.signature == kSigWord32) DefWindowProc(message, wParam, lParam);
    return true;
}

LRESULT CCmdTargetBase::DefWindowProc(unsigned, WPARAM, LPARAM) {
    return 0;
}

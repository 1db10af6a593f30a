#pragma once
// Command routing. Every window class has a chain of handler entries, one per bound message,
// built once at the class's first use; the chain's last link is the chain of its base class.
// A command, a notification or an update request is matched against the chain.
//
// A class binds its handlers in one function:
//
//   const CClassFunctionCall* CMyDlg::GetChainHead() const {
//       static const CHandlerChain chain(CUiDialog::GetChainHead(),
//           OnCommand(IDC_PROPERTY, UI_FN(&CMyDlg::OnProperty)),
//           OnControl(kCodeSelChange, IDC_COMBO, UI_FN(&CMyDlg::OnSelChange)));
//       return chain.Head();
//   }
//
// UI_FN gives the member pointer and its name as written ("&CMyDlg::OnProperty"). The qualified
// call of the base's GetChainHead takes the base's own chain, never the derived one.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ui/UiTypes.h"

class CCmdUI;
class CCmdTargetBase;

#define UI_FN(member) member, #member

// Forms of handler, recorded in each entry.
enum HandlerSignature : unsigned {
    kSigCommand = 0,        // void ()
    kSigCommandBool = 1,    // bool (); update entries: void (CCmdUI*)
    kSigCommandId = 2,      // void (unsigned id)
    kSigCommandIdBool = 3,  // bool (unsigned id)
    kSigCommandArg = 4,     // void (void* arg)
    kSigWordLong = 5,       // LRESULT (WPARAM, LPARAM)
    kSigUpdate = 6,         // void (CCmdUI*), the update object from lParam
    kSigNotify = 7,         // void (NMHDR*, LRESULT*)
    kSigNoArgument = 11,    // void ()
    kSigPoint = 13,         // void (unsigned flags, CPoint)
    kSigWordsPoint = 15,    // void (unsigned low, unsigned high, CPoint)
    kSigWord32 = 18,        // void (WPARAM), then the generic handler
};

// What one dispatch hands to a handler; each signature takes its part.
struct HandlerArgs {
    unsigned id = 0;
    void* arg = nullptr;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    CCmdUI* cmdUI = nullptr;
    NMHDR* notify = nullptr;
    LRESULT* result = nullptr;
};

// One entry of a chain. The entries are shared by every object of the class: the object whose
// member is called is the target of the dispatch.
class CClassFunctionCall {
  public:
    CClassFunctionCall(unsigned message, int code, int firstId, int lastId, unsigned signature,
                       const char* name)
        : message(message),
          code(code),
          firstId(firstId),
          lastId(lastId),
          signature(signature),
          name(name) {}
    virtual ~CClassFunctionCall() = default;
    CClassFunctionCall(const CClassFunctionCall&) = delete;
    CClassFunctionCall& operator=(const CClassFunctionCall&) = delete;

    // Calls the bound member on target; nothing happens when target is not of the class.
    virtual LRESULT Call(CCmdTargetBase& target, const HandlerArgs& args) const = 0;

    bool TakesId(int id) const { return firstId <= id && id <= lastId; }

    unsigned message;
    int code;
    int firstId;
    int lastId;
    unsigned signature;
    const CClassFunctionCall* next = nullptr;
    const char* name;
};

// How a member of each form is called.
template <class F>
struct HandlerInvoke;
template <>
struct HandlerInvoke<void()> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs&) {
        (o.*f)();
        return 0;
    }
};
template <>
struct HandlerInvoke<bool()> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs&) {
        return (o.*f)();
    }
};
template <>
struct HandlerInvoke<void(unsigned)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(a.id);
        return 0;
    }
};
template <>
struct HandlerInvoke<bool(unsigned)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        return (o.*f)(a.id);
    }
};
template <>
struct HandlerInvoke<void(void*)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(a.arg);
        return 0;
    }
};
template <>
struct HandlerInvoke<LRESULT(WPARAM, LPARAM)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        return (o.*f)(a.wParam, a.lParam);
    }
};
template <>
struct HandlerInvoke<void(CCmdUI*)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(a.cmdUI);
        return 0;
    }
};
template <>
struct HandlerInvoke<void(NMHDR*, LRESULT*)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(a.notify, a.result);
        return 0;
    }
};
template <>
struct HandlerInvoke<void(unsigned, CPoint)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(LoWord(a.wParam), PointFromLParam(a.lParam));
        return 0;
    }
};
template <>
struct HandlerInvoke<void(unsigned, unsigned, CPoint)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(LoWord(a.wParam), HiWord(a.wParam), PointFromLParam(a.lParam));
        return 0;
    }
};
template <>
struct HandlerInvoke<void(WPARAM)> {
    template <class C, class P>
    static LRESULT Run(C& o, P f, const HandlerArgs& a) {
        (o.*f)(a.wParam);
        return 0;
    }
};

// An entry bound to a member function F of Class.
template <class Class, class F>
class _TClassFunctionCall : public CClassFunctionCall {
  public:
    _TClassFunctionCall(unsigned message, int code, int firstId, int lastId, unsigned signature,
                        F Class::*member, const char* name)
        : CClassFunctionCall(message, code, firstId, lastId, signature, name), member_(member) {}

    LRESULT Call(CCmdTargetBase& target, const HandlerArgs& args) const override {
        Class* object = dynamic_cast<Class*>(&target);
        return object ? HandlerInvoke<F>::Run(*object, member_, args) : 0;
    }

  private:
    F Class::*member_;
};

using HandlerEntry = std::unique_ptr<CClassFunctionCall>;

template <class C, class F>
HandlerEntry MakeHandlerEntry(unsigned message, int code, int firstId, int lastId,
                              unsigned signature, F C::*member, const char* name) {
    return std::make_unique<_TClassFunctionCall<C, F>>(message, code, firstId, lastId, signature,
                                                       member, name);
}

// Binders, one per kind of entry.
template <class C>
HandlerEntry OnCommand(int id, void (C::*f)(), const char* name) {
    return MakeHandlerEntry(kMsgCommand, kCodeClicked, id, id, kSigCommand, f, name);
}
template <class C>
HandlerEntry OnCommand(int id, bool (C::*f)(), const char* name) {
    return MakeHandlerEntry(kMsgCommand, kCodeClicked, id, id, kSigCommandBool, f, name);
}
template <class C>
HandlerEntry OnCommandRange(int firstId, int lastId, void (C::*f)(unsigned), const char* name) {
    return MakeHandlerEntry(kMsgCommand, kCodeClicked, firstId, lastId, kSigCommandId, f, name);
}
template <class C>
HandlerEntry OnCommandRange(int firstId, int lastId, bool (C::*f)(unsigned), const char* name) {
    return MakeHandlerEntry(kMsgCommand, kCodeClicked, firstId, lastId, kSigCommandIdBool, f, name);
}
// A control's notification carried as a command: a combo box's selection, an edit's change.
template <class C>
HandlerEntry OnControl(int code, int id, void (C::*f)(), const char* name) {
    return MakeHandlerEntry(kMsgCommand, code, id, id, kSigCommand, f, name);
}
template <class C>
HandlerEntry OnCommandArg(int id, int code, void (C::*f)(void*), const char* name) {
    return MakeHandlerEntry(kMsgCommand, code, id, id, kSigCommandArg, f, name);
}
template <class C>
HandlerEntry OnUpdateCommandUI(int id, void (C::*f)(CCmdUI*), const char* name) {
    return MakeHandlerEntry(kMsgUpdateCommandUI, kCodeUpdateCommandUI, id, id, kSigCommandBool, f,
                            name);
}
template <class C>
HandlerEntry OnNotify(int code, int id, void (C::*f)(NMHDR*, LRESULT*), const char* name) {
    return MakeHandlerEntry(kMsgNotify, code, id, id, kSigNotify, f, name);
}
template <class C>
HandlerEntry OnMessage(unsigned message, LRESULT (C::*f)(WPARAM, LPARAM), const char* name) {
    return MakeHandlerEntry(message, 0, 0, 0, kSigWordLong, f, name);
}
template <class C>
HandlerEntry OnMessage(unsigned message, void (C::*f)(), const char* name) {
    return MakeHandlerEntry(message, 0, 0, 0, kSigNoArgument, f, name);
}
template <class C>
HandlerEntry OnMessage(unsigned message, void (C::*f)(CCmdUI*), const char* name) {
    return MakeHandlerEntry(message, 0, 0, 0, kSigUpdate, f, name);
}
template <class C>
HandlerEntry OnMessage(unsigned message, void (C::*f)(unsigned, CPoint), const char* name) {
    return MakeHandlerEntry(message, 0, 0, 0, kSigPoint, f, name);
}
template <class C>
HandlerEntry OnMessage(unsigned message, void (C::*f)(unsigned, unsigned, CPoint),
                       const char* name) {
    return MakeHandlerEntry(message, 0, 0, 0, kSigWordsPoint, f, name);
}
template <class C>
HandlerEntry OnMessage(unsigned message, void (C::*f)(WPARAM), const char* name) {
    return MakeHandlerEntry(message, 0, 0, 0, kSigWord32, f, name);
}

// A class's own entries in order, linked to the base's chain behind the last one.
class CHandlerChain {
  public:
    template <class... Entries>
    explicit CHandlerChain(const CClassFunctionCall* baseHead, Entries... entries) {
        (entries_.push_back(std::move(entries)), ...);
        Link(baseHead);
    }
    const CClassFunctionCall* Head() const { return head_; }

  private:
    void Link(const CClassFunctionCall* baseHead);
    std::vector<HandlerEntry> entries_;
    const CClassFunctionCall* head_ = nullptr;
};

class ICmdTarget {
  public:
    virtual ~ICmdTarget() = default;
    // A command, notification code or update request by identifier; true when a handler took
    // it. With testOnly, only asks whether a handler exists.
    virtual bool OnCmdMsg(unsigned id, int code, void* arg, bool testOnly) = 0;
    // A window message; true when a handler took it.
    virtual bool OnWndMsg(unsigned message, WPARAM wParam, LPARAM lParam,
                          LRESULT* result = nullptr) = 0;
    virtual const CClassFunctionCall* GetChainHead() const = 0;
};

class CCmdTargetBase : public ICmdTarget {
  public:
    bool OnCmdMsg(unsigned id, int code, void* arg, bool testOnly) override;
    bool OnWndMsg(unsigned message, WPARAM wParam, LPARAM lParam,
                  LRESULT* result = nullptr) override;
    // No entries of its own.
    const CClassFunctionCall* GetChainHead() const override { return nullptr; }
    // The generic handler, run after a handler of signature 18.
    virtual LRESULT DefWindowProc(unsigned message, WPARAM wParam, LPARAM lParam);

  private:
    bool DispatchEntry(const CClassFunctionCall& e, unsigned message, WPARAM wParam, LPARAM lParam,
                       LRESULT* result);
};

// The name of the handler of the last plain command, without its class ("OnProperty").
std::string LastCommandName();
void ResetLastCommandName();

// The window message being dispatched on this thread, or null outside a dispatch.
struct CurrentMessage {
    unsigned message;
    WPARAM wParam;
    LPARAM lParam;
    const CurrentMessage* outer;
};
const CurrentMessage* GetCurrentMessage();

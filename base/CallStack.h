#pragma once
// The call stack of one thread: captured without allocating (so that a crash handler can use
// it), resolved afterwards to demangled symbol names, with file and line where the binary
// carries debug information.
#include <pthread.h>

#include <string>

namespace base {

class CCallStack {
  public:
    static constexpr int kMaxFrames = 100;

    struct Frame {
        void* address = nullptr;
        // Filled by Resolve: empty symbol and file when unknown.
        std::string symbol;
        unsigned long offset = 0;
        std::string file;
        int line = 0;
        std::string module;
    };

    // Captures the stack of a thread: in place for the calling thread, else by signalling the
    // thread and capturing in its handler. skip drops that many innermost frames below the
    // caller. Returns false, with no frames, when the other thread cannot be reached; that is
    // written to the run log as "ERROR: CCallStack/Create/SuspendThread (%s)" or
    // ".../GetThreadContext (%s)".
    bool Create(pthread_t thread, int skip = 0);
    // Frames of the calling thread; async-signal-safe once PrepareCallStacks has run.
    bool CreateForCurrentThread(int skip = 0);

    int Count() const { return m_count; }
    const Frame& At(int i) const { return m_frames[i]; }

    // The address at which a signal interrupted the thread, taken from the handler's context;
    // that frame is looked up at its own address, not as a return address.
    void SetInterruptedAddress(void* address) { m_interrupted = address; }

    // Fills the symbol names; allocates.
    void Resolve();
    // One frame a line: "#NN 0x<address> <symbol>+0x<offset> at <file>:<line> in <module>".
    std::string Text();

    // How long Create waits for another thread, in milliseconds.
    static void SetRemoteWaitMs(int ms);

  private:
    Frame m_frames[kMaxFrames];
    int m_count = 0;
    void* m_interrupted = nullptr;
};

// The instruction address in a signal handler's context (its third argument), or null.
void* InterruptedAddress(void* signalContext);

// Loads what stack capture needs (the unwinder is loaded on first use, which allocates).
void PrepareCallStacks();

}  // namespace base

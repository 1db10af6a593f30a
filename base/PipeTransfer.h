#pragma once
// One timed transfer over a pipe. The transfer goes on until size bytes have passed, the other
// end is closed, or the time runs out. A broken pipe is no error: it ends the transfer with
// the bytes passed so far (0 when nothing passed), and writing to a pipe with no reader does
// not raise SIGPIPE.
//
// When the time runs out with cancelFd negative, the transfer is abandoned and the result is
// false. With a cancelFd (the other end of the same pipe, held by the caller), the blocked side
// is released through it: ReadPipe writes one byte to it, WritePipe reads the amount still to
// be written from it; then one more transfer is made with no limit and the result is true.
#include <cstddef>
#include <cstdint>

namespace base {

constexpr uint32_t kPipeWaitForever = 0xFFFFFFFFu;

// True when *readCount is valid. readCount may be null.
bool ReadPipe(int fd, void* buffer, size_t size, size_t* readCount, uint32_t timeoutMs,
              int cancelFd);
// True when *writtenCount is valid. writtenCount may be null.
bool WritePipe(int fd, const void* buffer, size_t size, size_t* writtenCount, uint32_t timeoutMs,
               int cancelFd);

}  // namespace base

// The batch run's progress line: drawn in place on a terminal, never on anything else.
#include "app/TerminalProgress.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/Progress.h"

namespace {

using testing_support::ReadStream;

TEST(TerminalProgress, RedrawsOneLineOnATerminalOnly) {
    FILE* file = std::tmpfile();
    {
        TerminalProgress notTerminal(file);  // a file is no terminal
        SetProgressStage("Processing Via Info ...");
        SetProgress(10);
    }
    EXPECT_EQ(ReadStream(file), "");
    std::fclose(file);

    FILE* terminal = std::tmpfile();
    double now = 100.0;
    {
        TerminalProgress line(terminal, 1, [&] { return now; });
        now = 101.5;
        SetProgressStage("Processing Via Info ...");
        now = 101.6;  // the same stage again at once: no redraw
        SetProgress(15);
        now = 112.0;
        SetProgressStage("Writing Node Info...");
        SetProgressStage("Translation completed");
    }
    SetProgressStage("Begin ...");  // nobody listens any more
    EXPECT_EQ(ReadStream(terminal),
              "\r\033[KProcessing Via Info ...   11 %  1.5 s"
              "\r\033[KWriting Node Info...   82 %  12.0 s"
              "\r\033[KTranslation completed  100 %  12.0 s"
              "\r\033[K");
    std::fclose(terminal);
}

}  // namespace

// The program as a user runs it: exit statuses, output, pictures in a folder.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <string>

namespace {

const std::string kData = QFXVIEW_TEST_DATA;

int RunViewer(const std::string& args, std::string& out) {
    std::string cmd = "cd '" + kData + "' && '" QFXVIEW_BINARY "' " + args + " 2>/dev/null";
    FILE* pipe = popen(cmd.c_str(), "r");
    char buffer[4096];
    size_t n;
    out.clear();
    while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) out.append(buffer, n);
    int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Program, ExitStatusTellsErrorsFromWarnings) {
    std::string out;
    EXPECT_EQ(RunViewer("patch.qfx", out), 0);  // a warning only
    EXPECT_EQ(RunViewer("unresolved.qfx", out), 1);
    EXPECT_EQ(RunViewer("", out), 2);
    EXPECT_EQ(RunViewer("clean.qfx --width", out), 2);
    EXPECT_EQ(RunViewer("nothing.qfx", out), 1);
    EXPECT_EQ(out, "nothing.qfx: error: cannot open the deck: No such file or directory\n");
}

TEST(Program, WritesAPictureOfEachConductorLayer) {
    QTemporaryDir dir;
    std::string out;
    ASSERT_EQ(RunViewer("clean.qfx -o '" + dir.path().toStdString() + "' --nodes", out), 0);
    QStringList files = QDir(dir.path()).entryList(QDir::Files, QDir::Name);
    EXPECT_EQ(files.join(" ").toStdString(),
              "layer-BOTTOM.png layer-GND.png layer-TOP.png stack.png");
    EXPECT_EQ(out.substr(0, out.find('\n')),
              "clean.qfx: 8 layers, 4 shapes, 5 nodes, 2 traces, 2 vias, 3 padstacks, 2 blocks, "
              "1 linkage; 0 errors, 0 warnings");
}

}  // namespace

#include "ui/MessageBox.h"

#include <QGuiApplication>
#include <cstdio>

#include "Version.h"
#include "model/ReportMessage.h"
#include "ui/SessionDriven.h"
#include "ui/UiApi.h"

const char* const kMessageBoxTitle = NDD2QFX_PRODUCT_NAME;

namespace {

MessageBoxAnswerer g_answerer;

// Nobody can see a box on a platform with no screen: the text goes to standard error and the
// box is answered as a batch run answers it.
bool NobodyCanSee() {
    if (qApp && ui::SessionDriven()) return false;
    return !qApp || QGuiApplication::platformName() == "offscreen" ||
           QGuiApplication::platformName() == "minimal";
}

int DefaultAnswer(int type) {
    return type == kBoxYesNo ? kAnswerYes : 1;
}

}  // namespace

int UiMessageBox(const std::string& text, int type, const std::string& title) {
    if (g_answerer) return g_answerer(title, text, type);
    if (NobodyCanSee()) {
        std::fprintf(stderr, "%s\n", text.c_str());
        return DefaultAnswer(type);
    }
    return UiApi().MessageBox(title, text, type);
}

MessageBoxAnswerer SetMessageBoxAnswerer(MessageBoxAnswerer answerer) {
    MessageBoxAnswerer previous = std::move(g_answerer);
    g_answerer = std::move(answerer);
    return previous;
}

CMessageBoxAnswers::CMessageBoxAnswers(std::vector<int> answers) : m_answers(std::move(answers)) {
    m_previous =
        SetMessageBoxAnswerer([this](const std::string& title, const std::string& text, int type) {
            m_shown.push_back({title, text, type});
            size_t turn = m_shown.size() - 1;
            return turn < m_answers.size() ? m_answers[turn] : DefaultAnswer(type);
        });
}

CMessageBoxAnswers::~CMessageBoxAnswers() {
    SetMessageBoxAnswerer(std::move(m_previous));
}

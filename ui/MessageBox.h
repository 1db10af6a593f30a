#pragma once
// Message boxes of a dialog run: type 0 (OK), 4 (Yes/No) and 48 (warning), answered 1, 6 or 7.
// An answerer can take the place of the person in front of the screen: tests install one, and
// a toolkit with no screen (the offscreen platform) answers as a batch run would.
#include <functional>
#include <string>
#include <vector>

// The title of the program's boxes.
extern const char* const kMessageBoxTitle;

// Shows a box (or asks the installed answerer) and returns the answer.
int UiMessageBox(const std::string& text, int type, const std::string& title = kMessageBoxTitle);

using MessageBoxAnswerer =
    std::function<int(const std::string& title, const std::string& text, int type)>;
// Installs an answerer and returns the previous one; an empty one shows real boxes.
MessageBoxAnswerer SetMessageBoxAnswerer(MessageBoxAnswerer answerer);

struct ShownMessageBox {
    std::string title;
    std::string text;
    int type;
};

// For tests: answers boxes in turn from a list while it lives, and records each box. When the
// list runs out, OK and warning boxes are answered 1 and Yes/No boxes 6.
class CMessageBoxAnswers {
  public:
    explicit CMessageBoxAnswers(std::vector<int> answers = {});
    ~CMessageBoxAnswers();
    CMessageBoxAnswers(const CMessageBoxAnswers&) = delete;
    CMessageBoxAnswers& operator=(const CMessageBoxAnswers&) = delete;
    const std::vector<ShownMessageBox>& Shown() const { return m_shown; }

  private:
    std::vector<int> m_answers;
    std::vector<ShownMessageBox> m_shown;
    MessageBoxAnswerer m_previous;
};

#pragma once
// Small steps that every form's setupUi repeats.
#include <QCoreApplication>
#include <QRect>
#include <QString>
#include <QWidget>

class QPushButton;

// Names the dialog (when it has no name yet), gives it the forms' font and its size in dialog
// pixels.
void BeginForm(QWidget* dialog, const char* formName, int width, int height);
// Connects slots by name and scales the form unless `skipScale`.
void EndForm(QWidget* dialog, bool skipScale);

// A control of class W in `dialog` named "ui_" + `symbol`, at (x, y) with the given size.
template <class W>
W* NewControl(QWidget* dialog, const char* symbol, int x, int y, int width, int height) {
    W* control = new W(dialog);
    control->setObjectName(QStringLiteral("ui_") + QLatin1String(symbol));
    control->setGeometry(x, y, width, height);
    return control;
}

// A framing control (group box, line): it lets the mouse through to the controls that it
// encloses, which may lie beneath it.
template <class W>
W* NewFrame(QWidget* dialog, const char* symbol, int x, int y, int width, int height) {
    W* frame = NewControl<W>(dialog, symbol, x, y, width, height);
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    return frame;
}

// A text of the form, translated in the form's own context.
inline QString FormText(const char* formName, const char* text) {
    return QCoreApplication::translate(formName, text, nullptr);
}

// Makes `button` the dialog's default button.
void MakeDefault(QPushButton* button);

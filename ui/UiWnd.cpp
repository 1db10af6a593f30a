#include "ui/UiWnd.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QVariant>

namespace {

// The property by which a widget knows its wrapper.
const char* const kWrapperProperty = "ndd2qfx_wrapper";

}  // namespace

CUiWnd::~CUiWnd() {
    Detach();
}

void CUiWnd::Attach(QWidget* widget) {
    Detach();
    m_handle = widget;
    if (widget)
        widget->setProperty(kWrapperProperty, QVariant::fromValue(static_cast<void*>(this)));
}

QWidget* CUiWnd::Detach() {
    QWidget* widget = m_handle.data();
    if (widget && FromHandle(widget) == this) widget->setProperty(kWrapperProperty, QVariant());
    m_handle.clear();
    return widget;
}

CUiWnd* CUiWnd::FromHandle(const QWidget* widget) {
    if (!widget) return nullptr;
    return static_cast<CUiWnd*>(widget->property(kWrapperProperty).value<void*>());
}

void CUiWnd::SetWindowText(const std::string& text) {
    QWidget* w = GetHandle();
    if (!w) return;
    QString q = QString::fromStdString(text);
    if (auto* label = qobject_cast<QLabel*>(w))
        label->setText(q);
    else if (auto* button = qobject_cast<QAbstractButton*>(w))
        button->setText(q);
    else if (auto* edit = qobject_cast<QLineEdit*>(w))
        edit->setText(q);
    else if (auto* combo = qobject_cast<QComboBox*>(w))
        combo->isEditable() ? combo->setEditText(q) : combo->setCurrentIndex(combo->findText(q));
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(w))
        plain->setPlainText(q);
    else if (auto* rich = qobject_cast<QTextEdit*>(w))
        rich->setPlainText(q);
    else if (auto* group = qobject_cast<QGroupBox*>(w))
        group->setTitle(q);
    else
        w->setWindowTitle(q);
}

std::string CUiWnd::GetWindowText() const {
    QWidget* w = GetHandle();
    if (!w) return std::string();
    QString q;
    if (auto* label = qobject_cast<QLabel*>(w))
        q = label->text();
    else if (auto* button = qobject_cast<QAbstractButton*>(w))
        q = button->text();
    else if (auto* edit = qobject_cast<QLineEdit*>(w))
        q = edit->text();
    else if (auto* combo = qobject_cast<QComboBox*>(w))
        q = combo->currentText();
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(w))
        q = plain->toPlainText();
    else if (auto* rich = qobject_cast<QTextEdit*>(w))
        q = rich->toPlainText();
    else if (auto* group = qobject_cast<QGroupBox*>(w))
        q = group->title();
    else
        q = w->windowTitle();
    return q.toStdString();
}

void CUiWnd::EnableWindow(bool enable) {
    if (QWidget* w = GetHandle()) w->setEnabled(enable);
}

bool CUiWnd::IsWindowEnabled() const {
    QWidget* w = GetHandle();
    return w && w->isEnabled();
}

void CUiWnd::ShowWindow(bool show) {
    if (QWidget* w = GetHandle()) w->setVisible(show);
}

bool CUiWnd::IsWindowVisible() const {
    QWidget* w = GetHandle();
    return w && w->isVisible();
}

int CUiWnd::GetCheck() const {
    if (auto* box = qobject_cast<QCheckBox*>(GetHandle()))
        return box->checkState() == Qt::Checked            ? 1
               : box->checkState() == Qt::PartiallyChecked ? 2
                                                           : 0;
    auto* button = qobject_cast<QAbstractButton*>(GetHandle());
    return button && button->isChecked() ? 1 : 0;
}

void CUiWnd::SetCheck(int state) {
    if (auto* box = qobject_cast<QCheckBox*>(GetHandle())) {
        box->setCheckState(state == 2 ? Qt::PartiallyChecked : state ? Qt::Checked : Qt::Unchecked);
    } else if (auto* button = qobject_cast<QAbstractButton*>(GetHandle())) {
        button->setCheckable(true);
        button->setChecked(state != 0);
    }
}

void CUiWnd::SetFocus() {
    if (QWidget* w = GetHandle()) w->setFocus();
}

void CUiWnd::Invalidate() {
    if (QWidget* w = GetHandle()) w->update();
}

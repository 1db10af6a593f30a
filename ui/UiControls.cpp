#include "ui/UiControls.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

void CUiButton::Click() {
    if (auto* button = qobject_cast<QAbstractButton*>(GetHandle())) button->click();
}

QComboBox* CUiComboBox::Combo() const {
    return qobject_cast<QComboBox*>(GetHandle());
}

int CUiComboBox::AddString(const std::string& text) {
    QComboBox* c = Combo();
    if (!c) return -1;
    c->addItem(QString::fromStdString(text));
    return c->count() - 1;
}

int CUiComboBox::InsertString(int index, const std::string& text) {
    QComboBox* c = Combo();
    if (!c) return -1;
    if (index < 0 || index > c->count()) index = c->count();
    c->insertItem(index, QString::fromStdString(text));
    return index;
}

void CUiComboBox::DeleteString(int index) {
    if (QComboBox* c = Combo()) c->removeItem(index);
}

void CUiComboBox::ResetContent() {
    if (QComboBox* c = Combo()) c->clear();
}

int CUiComboBox::GetCount() const {
    QComboBox* c = Combo();
    return c ? c->count() : 0;
}

int CUiComboBox::GetCurSel() const {
    QComboBox* c = Combo();
    return c ? c->currentIndex() : -1;
}

void CUiComboBox::SetCurSel(int index) {
    QComboBox* c = Combo();
    if (!c) return;
    QSignalBlocker quiet(c);
    c->setCurrentIndex(index);
}

std::string CUiComboBox::GetLBText(int index) const {
    QComboBox* c = Combo();
    return c ? c->itemText(index).toStdString() : std::string();
}

int CUiComboBox::FindStringExact(int start, const std::string& text) const {
    QComboBox* c = Combo();
    if (!c) return -1;
    QString q = QString::fromStdString(text);
    for (int i = start < 0 ? 0 : start + 1; i < c->count(); ++i)
        if (c->itemText(i).compare(q, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

void CUiComboBox::SetItemData(int index, std::uintptr_t data) {
    if (QComboBox* c = Combo()) c->setItemData(index, QVariant::fromValue<qulonglong>(data));
}

std::uintptr_t CUiComboBox::GetItemData(int index) const {
    QComboBox* c = Combo();
    return c ? static_cast<std::uintptr_t>(c->itemData(index).toULongLong()) : 0;
}

bool CUiComboBox::GetDroppedState() const {
    QComboBox* c = Combo();
    return c && c->view() && c->view()->isVisible();
}

void CUiComboBox::ShowDropDown(bool show) {
    QComboBox* c = Combo();
    if (!c) return;
    if (show)
        c->showPopup();
    else
        c->hidePopup();
}

QLineEdit* CUiEdit::Edit() const {
    return qobject_cast<QLineEdit*>(GetHandle());
}

void CUiEdit::SetReadOnly(bool readOnly) {
    if (QLineEdit* e = Edit()) e->setReadOnly(readOnly);
}

void CUiEdit::LimitText(int length) {
    if (QLineEdit* e = Edit()) e->setMaxLength(length > 0 ? length : 32767);
}

void CUiEdit::SetSel(int start, int end) {
    QLineEdit* e = Edit();
    if (!e) return;
    if (start < 0) {
        e->deselect();
        return;
    }
    if (end < 0) end = e->text().size();
    e->setSelection(start, end - start);
}

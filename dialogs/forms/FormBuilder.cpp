#include "dialogs/forms/FormBuilder.h"

#include <QFont>
#include <QMetaObject>
#include <QPushButton>
#include <algorithm>
#include <utility>
#include <vector>

#include "dialogs/forms/FormScale.h"

// The forms place their controls for a dialog font of 9 points; a larger desktop font would
// cut their texts. Points follow the screen's density as the form's size does.
constexpr double kFormFontPoints = 9;

void BeginForm(QWidget* dialog, const char* formName, int width, int height) {
    if (dialog->objectName().isEmpty()) dialog->setObjectName(QLatin1String(formName));
    QFont font = dialog->font();
    font.setPointSizeF(kFormFontPoints);
    dialog->setFont(font);
    dialog->resize(width, height);
}

namespace {

// The Tab key walks the controls as a reader does, row by row and left to right, whatever the
// order in which the form made them. Controls whose tops lie within a few pixels share a row.
void OrderTabsByPlace(QWidget* dialog) {
    std::vector<QWidget*> controls;
    for (QWidget* child : dialog->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (child->focusPolicy() & Qt::TabFocus) controls.push_back(child);
    auto place = [](const QWidget* w) { return std::make_pair(w->y() / 10, w->x()); };
    std::stable_sort(controls.begin(), controls.end(),
                     [&](const QWidget* a, const QWidget* b) { return place(a) < place(b); });
    for (std::size_t i = 1; i < controls.size(); ++i)
        QWidget::setTabOrder(controls[i - 1], controls[i]);
}

}  // namespace

void EndForm(QWidget* dialog, bool skipScale) {
    OrderTabsByPlace(dialog);
    QMetaObject::connectSlotsByName(dialog);
    if (!skipScale) ScaleForm(dialog);
}

void MakeDefault(QPushButton* button) {
    button->setDefault(true);
}

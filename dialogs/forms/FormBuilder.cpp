#include "dialogs/forms/FormBuilder.h"

#include <QFont>
#include <QMetaObject>
#include <QPushButton>

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

void EndForm(QWidget* dialog, bool skipScale) {
    QMetaObject::connectSlotsByName(dialog);
    if (!skipScale) ScaleForm(dialog);
}

void MakeDefault(QPushButton* button) {
    button->setDefault(true);
}

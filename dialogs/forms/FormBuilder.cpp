#include "dialogs/forms/FormBuilder.h"

#include <QMetaObject>
#include <QPushButton>

#include "dialogs/forms/FormScale.h"

void BeginForm(QWidget* dialog, const char* formName, int width, int height) {
    if (dialog->objectName().isEmpty()) dialog->setObjectName(QLatin1String(formName));
    dialog->resize(width, height);
}

void EndForm(QWidget* dialog, bool skipScale) {
    QMetaObject::connectSlotsByName(dialog);
    if (!skipScale) ScaleForm(dialog);
}

void MakeDefault(QPushButton* button) {
    button->setDefault(true);
}

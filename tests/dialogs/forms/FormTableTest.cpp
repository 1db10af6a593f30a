// Every form against its description in tests/data/forms/forms.txt: name, size, title, and per
// control its object name, identifier, text and whether it is the default button.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTextStream>
#include <QWidget>

#include "TestSupport.h"
#include "dialogs/forms/FormScale.h"
#include "dialogs/forms/Ndd2QfxResourceMgr.h"
#include "ui/UiListCtrl.h"

namespace {

struct FormCase {
    int number = 0;
    QString expected;  // the block of the data file
};

QList<FormCase> ReadCases() {
    QList<FormCase> cases;
    const QString text = QString::fromStdString(testing_support::DataFile("forms/forms.txt"));
    for (const QString& block : text.split("\n\n")) {
        if (block.trimmed().isEmpty() || block.startsWith('#')) continue;
        const QString expected = block.trimmed() + "\n";
        cases.append({expected.section(' ', 1, 1).toInt(), expected});
    }
    return cases;
}

QString TextOf(const QWidget* w) {
    if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (auto* l = qobject_cast<const QLabel*>(w)) return l->text();
    if (auto* g = qobject_cast<const QGroupBox*>(w)) return g->title();
    return QString();
}

// The identifier, among those that the form lists, under which its lookup finds the widget;
// 0 for none.
int IdOf(CQtDialogForm& form, const QWidget* w) {
    for (int id : form.GetControlIds())
        if (form.GetControl(id) == w) return id;
    return 0;
}

// The form as the data file describes it.
QString Describe(int number, CQtDialogForm& form, const QWidget& dialog) {
    QString out;
    QTextStream s(&out);
    s << "form " << number << ' ' << dialog.objectName() << ' ' << dialog.width() << 'x'
      << dialog.height() << " \"" << dialog.windowTitle() << "\"\n";
    for (const QWidget* w : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QString name = w->objectName().mid(3);
        s << "  " << name;
        const int id = IdOf(form, w);
        if (id != 0) s << " #" << id;
        if (id != 0 && form.GetListControl(id) == w) s << " list";
        const QString text = TextOf(w);
        if (!text.isEmpty()) s << " \"" << text << '"';
        if (auto* b = qobject_cast<const QPushButton*>(w); b && b->isDefault()) s << " default";
        s << '\n';
    }
    return out;
}

}  // namespace

TEST(Forms, EachFormBuildsItsNamesTextsAndIdentifiers) {
    const QList<FormCase> cases = ReadCases();
    ASSERT_EQ(cases.size(), 13);
    CQtNdd2QfxResourceMgr resources;
    for (const FormCase& c : cases) {
        std::unique_ptr<CQtDialogForm> form = resources.CreateDialogForm(c.number);
        ASSERT_NE(form, nullptr) << c.number;
        QWidget dialog;
        form->setupUi(&dialog, true);
        EXPECT_EQ(Describe(c.number, *form, dialog).toStdString(), c.expected.toStdString());
        EXPECT_EQ(form->GetControl(9999), nullptr);
        EXPECT_EQ(form->GetListControl(1), nullptr);
    }
}

TEST(Forms, DensityScalesTheFormOnBothAxesUnlessSkipped) {
    CQtNdd2QfxResourceMgr resources;
    OverrideFormDpi(144);
    for (bool skip : {false, true}) {
        std::unique_ptr<CQtDialogForm> form = resources.CreateDialogForm(102);
        QWidget dialog;
        form->setupUi(&dialog, skip);
        EXPECT_EQ(dialog.size(), skip ? QSize(690, 280) : QSize(1035, 420));
        EXPECT_EQ(form->GetControl(1000)->geometry(),
                  skip ? QRect(145, 34, 360, 24) : QRect(218, 51, 540, 36));
    }
    OverrideFormDpi(0);
}

TEST(Forms, ResourceTableHoldsFourPicturesAndNothingElse) {
    CQtNdd2QfxResourceMgr resources;
    for (int number : {100, 128, 138, 139}) EXPECT_FALSE(resources.LoadPixmap(number).isNull());
    EXPECT_EQ(resources.LoadImageList(138, 16).size(), 12);
    for (int number : {0, 101, 102, 137, 140}) {
        EXPECT_FALSE(resources.FindResource(number, nullptr, nullptr)) << number;
        EXPECT_TRUE(resources.LoadPixmap(number).isNull());
        EXPECT_TRUE(resources.LoadImageList(number, 16).isEmpty());
    }
    EXPECT_EQ(resources.CreateForm(100), nullptr);
}

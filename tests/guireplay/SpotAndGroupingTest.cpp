// Where inside a widget a step went, found again after the widget changed; and how record
// steps are grouped into script lines.
#include <gtest/gtest.h>

#include <QEvent>
#include <QMenu>
#include <QTabBar>

#include "guireplay/ExtraIndex.h"
#include "guireplay/ScriptText.h"

using namespace guireplay;

TEST(Spots, ATabIsFoundByItsTextWhenItMoved) {
    QTabBar bar;
    bar.setObjectName("pageTabs");
    bar.addTab("General");
    bar.addTab("Colours");
    const QString spot = DescribeSpot(&bar, bar.tabRect(1).center());
    EXPECT_EQ(spot, "Tab|1|Colours");
    EXPECT_EQ(SpotSummary(spot), "{\"Colours\"}");
    bar.insertTab(0, "Nets");
    SpotResult found = FindSpot(&bar, spot, QPoint());
    EXPECT_TRUE(found.ok);
    EXPECT_EQ(found.pos, bar.tabRect(2).center());
    EXPECT_EQ(found.messages, "\n\tWarning: The text or index of tab \"Colours\" may be changed.");
    bar.removeTab(2);
    bar.removeTab(1);
    found = FindSpot(&bar, spot, QPoint());
    EXPECT_FALSE(found.ok);
    EXPECT_EQ(found.messages,
              "\n\tWarning: The text or index of tab \"Colours\" may be changed."
              "\n\tWarning: It may locate the wrong tab bar: pageTabs.");
}

TEST(Spots, AMenuItemThatIsGoneIsReplacedByTheOneAtItsIndex) {
    QMenu menu;
    menu.addAction("Open");
    menu.addAction("Save")->setEnabled(false);
    const QString spot = "MenuItem|1|Save as";
    const SpotResult found = FindSpot(&menu, spot, QPoint());
    EXPECT_TRUE(found.ok);
    EXPECT_EQ(found.messages,
              "\n\tWarning: The menu item \"Save as\" has been changed or deleted. \"Save\" will "
              "be selected instead.\n\tWarning: The menu item \"Save as\" is not enabled.");
}

namespace {

Step Mouse(int type, QPointF pos, int button = Qt::LeftButton) {
    Step s;
    s.location.levels.push_back({"QDialog", "dlg", "Dialog", QPoint(), true});
    s.event.type = type;
    s.event.pos = pos;
    s.event.button = button;
    return s;
}

}  // namespace

TEST(ScriptGrouping, MouseStepsBecomeOneLineEach) {
    Session session;
    session.steps = {Mouse(QEvent::MouseButtonPress, {1, 1}),
                     Mouse(QEvent::MouseMove, {4, 4}),
                     Mouse(QEvent::MouseButtonRelease, {9, 8}),
                     Mouse(QEvent::MouseMove, {9, 9}),
                     Mouse(QEvent::MouseMove, {10, 9.5}),
                     Mouse(QEvent::MouseButtonPress, {2, 2}, Qt::RightButton),
                     Mouse(QEvent::MouseButtonRelease, {2, 2}, Qt::RightButton),
                     Mouse(QEvent::MouseButtonDblClick, {3, 3}),
                     Mouse(QEvent::MouseButtonRelease, {3, 3})};
    QStringList lines;
    for (const ScriptStep& step : GroupSteps(session, false))
        lines << QString("%1 %2 %3").arg(step.first).arg(step.count).arg(step.inScript) + " " +
                     step.core;
    const QString path = "[#dlg, \"Dialog\"]";
    EXPECT_EQ(lines,
              QStringList({
                  "0 3 1 Event: MouseDrag " + path + " (1,1) to (9,8)",
                  "3 2 0 Event: MouseMoveGroup " + path + " (9,9) to (10.000000,9.500000) events=2",
                  "5 2 1 Event: MouseClick(Right) " + path + " (2,2)",
                  "7 2 1 Event: MouseDblClick " + path + " (3,3)",
              }));
    EXPECT_TRUE(GroupSteps(session, true)[1].inScript);
}

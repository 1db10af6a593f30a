#include "guireplay/ExtraIndex.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace guireplay {

namespace {

const QChar kSep = QLatin1Char('|');

QString Simple(const char* kind, int index, const QString& text) {
    return QString::fromLatin1(kind) + kSep + QString::number(index) + kSep + text;
}

QString ItemSpot(const QAbstractItemView* view, QPoint pos) {
    const QModelIndex index = view->indexAt(pos);
    if (!index.isValid()) return QString();
    QVector<QModelIndex> chain;
    for (QModelIndex i = index.sibling(index.row(), 0); i.isValid() && i != view->rootIndex();
         i = i.parent())
        chain.prepend(i);
    QString out;
    QXmlStreamWriter xml(&out);
    xml.writeStartElement(QStringLiteral("GUI_Locate"));
    xml.writeStartElement(QStringLiteral("InsideItemView"));
    xml.writeStartElement(QStringLiteral("Header"));
    xml.writeStartElement(QStringLiteral("Col"));
    xml.writeAttribute(QStringLiteral("Title"),
                       view->model()->headerData(index.column(), Qt::Horizontal).toString());
    xml.writeCharacters(QString::number(index.column()));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("Tree"));
    for (const QModelIndex& i : chain) {
        xml.writeStartElement(QStringLiteral("TreeNode"));
        xml.writeAttribute(QStringLiteral("Row"), QString::number(i.row()));
        xml.writeAttribute(QStringLiteral("Title"), i.data().toString());
    }
    for (int i = 0; i < chain.size() + 3; ++i) xml.writeEndElement();
    return out;
}

struct ItemPath {
    QString colTitle;
    int column = 0;
    QVector<QPair<int, QString>> rows;  // row and title, from the top
};

ItemPath ParseItemPath(const QString& text) {
    ItemPath path;
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) continue;
        if (xml.name() == QLatin1String("Col")) {
            path.colTitle = xml.attributes().value(QLatin1String("Title")).toString();
            path.column = xml.readElementText().toInt();
        } else if (xml.name() == QLatin1String("TreeNode")) {
            const auto a = xml.attributes();
            path.rows.push_back({a.value(QLatin1String("Row")).toInt(),
                                 a.value(QLatin1String("Title")).toString()});
        }
    }
    return path;
}

// The child of parent titled title, else the one at row.
QModelIndex Child(const QAbstractItemModel* model, const QModelIndex& parent, int row,
                  const QString& title) {
    const QModelIndex atRow = model->index(row, 0, parent);
    if (atRow.isValid() && atRow.data().toString() == title) return atRow;
    for (int r = 0; r < model->rowCount(parent); ++r) {
        const QModelIndex i = model->index(r, 0, parent);
        if (i.data().toString() == title) return i;
    }
    return QModelIndex();
}

int ColumnOf(const QAbstractItemModel* model, const ItemPath& path) {
    for (int c = 0; c < model->columnCount(); ++c)
        if (model->headerData(c, Qt::Horizontal).toString() == path.colTitle) return c;
    return path.column;
}

SpotResult FindItem(QAbstractItemView* view, const QString& text, QPoint pos) {
    SpotResult r;
    r.pos = pos;
    const ItemPath path = ParseItemPath(text);
    const QAbstractItemModel* model = view->model();
    QModelIndex index = view->rootIndex();
    int lastRow = path.rows.isEmpty() ? -1 : path.rows.last().first;
    for (const auto& level : path.rows) index = Child(model, index, level.first, level.second);
    const int column = ColumnOf(model, path);
    index = index.isValid() ? index.sibling(index.row(), column) : index;
    if (!index.isValid()) {
        r.ok = false;
        r.messages = QString::asprintf("\n\tError: The index (%d,%d) is invalid.", lastRow, column);
        return r;
    }
    view->scrollTo(index);
    const QRect rect = view->visualRect(index);
    if (rect.isEmpty() || !view->viewport()->rect().intersects(rect)) {
        r.ok = false;
        r.messages =
            QString::asprintf("\n\tError: The index (%d,%d) is not visible.", index.row(), column);
        return r;
    }
    if (!rect.contains(pos)) {
        r.pos = QPoint(qBound(rect.left(), pos.x(), rect.right()), rect.center().y());
        if (!view->viewport()->rect().contains(r.pos)) {
            r.ok = false;
            r.messages = QString::asprintf(
                "\n\tError: The expected sub area of index (%d,%d) is not visible.", index.row(),
                column);
        }
    }
    return r;
}

SpotResult FindMenuItem(QMenu* menu, int index, const QString& text, QPoint pos) {
    SpotResult r;
    r.pos = pos;
    const QList<QAction*> actions = menu->actions();
    QAction* found = nullptr;
    for (QAction* a : actions)
        if (a->text() == text) found = a;
    if (found && actions.indexOf(found) != index)
        r.messages += QStringLiteral("\n\tWarning: The index of menu item \"%1\" has been changed.")
                          .arg(text);
    if (!found && index >= 0 && index < actions.size()) {
        found = actions[index];
        r.messages += QStringLiteral(
                          "\n\tWarning: The menu item \"%1\" has been changed or deleted. \"%2\" "
                          "will be selected instead.")
                          .arg(text, found->text());
    }
    if (!found) {
        r.ok = false;
        r.messages += QStringLiteral(
                          "\n\tWarning: The menu item \"%1\" has been changed or deleted. \"%2\" "
                          "will be selected instead.")
                          .arg(text, QString());
        return r;
    }
    if (!found->isVisible())
        r.messages += QStringLiteral("\n\tWarning: The menu item \"%1\" is not visible.").arg(text);
    if (!found->isEnabled())
        r.messages += QStringLiteral("\n\tWarning: The menu item \"%1\" is not enabled.").arg(text);
    r.pos = menu->actionGeometry(found).center();
    return r;
}

SpotResult FindMenuBarItem(QMenuBar* bar, int index, const QString& text, QPoint pos) {
    SpotResult r;
    r.pos = pos;
    const QList<QAction*> actions = bar->actions();
    QAction* found = nullptr;
    for (QAction* a : actions)
        if (a->text() == text) found = a;
    if (!found || actions.indexOf(found) != index) {
        r.messages +=
            QStringLiteral("\n\tWarning: The text or index of menu bar item \"%1\" may be changed.")
                .arg(text);
        if (!found && index >= 0 && index < actions.size()) found = actions[index];
    }
    if (!found) {
        r.ok = false;
        r.messages += QStringLiteral("\n\tWarning: It may locate the wrong menu bar: %1.")
                          .arg(bar->objectName());
        return r;
    }
    if (!found->isVisible())
        r.messages +=
            QStringLiteral("\n\tWarning: The menubar item \"%1\" is not visible.").arg(text);
    r.pos = bar->actionGeometry(found).center();
    return r;
}

SpotResult FindTab(QTabBar* bar, int index, const QString& text, QPoint pos) {
    SpotResult r;
    r.pos = pos;
    int found = -1;
    for (int i = 0; i < bar->count(); ++i)
        if (bar->tabText(i) == text) found = i;
    if (found != index) {
        r.messages += QStringLiteral("\n\tWarning: The text or index of tab \"%1\" may be changed.")
                          .arg(text);
        if (found < 0) found = index < bar->count() ? index : -1;
    }
    if (found < 0) {
        r.ok = false;
        r.messages += QStringLiteral("\n\tWarning: It may locate the wrong tab bar: %1.")
                          .arg(bar->objectName());
        return r;
    }
    r.pos = bar->tabRect(found).center();
    return r;
}

SpotResult FindSection(QHeaderView* header, int index, const QString& text, QPoint pos) {
    SpotResult r;
    r.pos = pos;
    const QAbstractItemModel* model = header->model();
    int found = -1;
    for (int i = 0; model && i < header->count(); ++i)
        if (model->headerData(i, header->orientation()).toString() == text) found = i;
    if (found != index) {
        r.messages += QStringLiteral(
                          "\n\tWarning: The text or index of header section \"%1\" may be changed.")
                          .arg(text);
        if (found < 0) found = index < header->count() ? index : -1;
    }
    if (found < 0) {
        r.ok = false;
        r.messages += QStringLiteral("\n\tWarning: It may locate the wrong item view header: %1.")
                          .arg(header->objectName());
        return r;
    }
    const int start = header->sectionViewportPosition(found);
    const int mid = start + header->sectionSize(found) / 2;
    r.pos = header->orientation() == Qt::Horizontal ? QPoint(mid, pos.y()) : QPoint(pos.x(), mid);
    return r;
}

}  // namespace

QString DescribeSpot(const QWidget* receiver, QPoint pos) {
    if (auto menu = qobject_cast<const QMenu*>(receiver)) {
        QAction* a = menu->actionAt(pos);
        return a ? Simple("MenuItem", menu->actions().indexOf(a), a->text()) : QString();
    }
    if (auto bar = qobject_cast<const QMenuBar*>(receiver)) {
        QAction* a = bar->actionAt(pos);
        return a ? Simple("MenuBarItem", bar->actions().indexOf(a), a->text()) : QString();
    }
    if (auto tabs = qobject_cast<const QTabBar*>(receiver)) {
        const int i = tabs->tabAt(pos);
        return i >= 0 ? Simple("Tab", i, tabs->tabText(i)) : QString();
    }
    auto view =
        receiver ? qobject_cast<const QAbstractItemView*>(receiver->parentWidget()) : nullptr;
    if (!view || view->viewport() != receiver || !view->model()) return QString();
    if (auto header = qobject_cast<const QHeaderView*>(view)) {
        const int i = header->logicalIndexAt(pos);
        if (i < 0) return QString();
        return Simple("Section", i,
                      header->model()->headerData(i, header->orientation()).toString());
    }
    return ItemSpot(view, pos);
}

QString SpotSummary(const QString& extraIndex) {
    if (extraIndex.startsWith(QLatin1String("<GUI_Locate"))) {
        QStringList titles;
        for (const auto& row : ParseItemPath(extraIndex).rows)
            titles << QLatin1Char('"') + row.second + QLatin1Char('"');
        return QLatin1Char('{') + titles.join(QLatin1Char('/')) + QLatin1Char('}');
    }
    return QStringLiteral("{\"%1\"}").arg(extraIndex.section(kSep, 2));
}

SpotResult FindSpot(QWidget* receiver, const QString& extraIndex, QPoint pos) {
    if (extraIndex.startsWith(QLatin1String("<GUI_Locate"))) {
        if (auto view = qobject_cast<QAbstractItemView*>(receiver->parentWidget()))
            return FindItem(view, extraIndex, pos);
    }
    const QString kind = extraIndex.section(kSep, 0, 0);
    const int index = extraIndex.section(kSep, 1, 1).toInt();
    const QString text = extraIndex.section(kSep, 2);
    if (auto menu = qobject_cast<QMenu*>(receiver))
        if (kind == QLatin1String("MenuItem")) return FindMenuItem(menu, index, text, pos);
    if (auto bar = qobject_cast<QMenuBar*>(receiver))
        if (kind == QLatin1String("MenuBarItem")) return FindMenuBarItem(bar, index, text, pos);
    if (auto tabs = qobject_cast<QTabBar*>(receiver))
        if (kind == QLatin1String("Tab")) return FindTab(tabs, index, text, pos);
    if (auto header = qobject_cast<QHeaderView*>(receiver->parentWidget()))
        if (kind == QLatin1String("Section")) return FindSection(header, index, text, pos);
    SpotResult r;
    r.pos = pos;
    return r;
}

}  // namespace guireplay

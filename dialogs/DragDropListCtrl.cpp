#include "dialogs/DragDropListCtrl.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>

#include "dialogs/RowImages.h"
#include "ui/UiListCtrl.h"

namespace {

// The picture of a group row that opens and closes it.
constexpr int kToggleSide = 15;
constexpr int kColumnWidth = 190;
constexpr int kScrollInterval = 50;
constexpr char kColumnTitle[] = "Power-Ground Groups ";

}  // namespace

CDragDropListCtrl::CDragDropListCtrl() = default;
CDragDropListCtrl::~CDragDropListCtrl() = default;

void CDragDropListCtrl::Attach(CUiListCtrl* list, std::vector<PinGroupRec> groups,
                               std::map<std::string, std::string> pinTexts) {
    m_list = list;
    m_groups = std::move(groups);
    m_pinTexts = std::move(pinTexts);
    if (!m_list) return;
    m_list->SetImageList(PinGroupImages(), CUiListCtrl::kNormalImages);
    if (m_list->GetColumnCount() == 0) m_list->InsertColumn(0, kColumnTitle, kColumnWidth);
    m_list->viewport()->installEventFilter(this);
    m_scrollTimer = new QTimer(this);
    m_scrollTimer->setInterval(kScrollInterval);
    connect(m_scrollTimer, &QTimer::timeout, this, [this] { ScrollStep(); });
    Refresh();
}

void CDragDropListCtrl::Refresh() {
    if (!m_list) return;
    m_list->DeleteAllItems();
    m_rows.clear();
    for (size_t g = 0; g < m_groups.size(); ++g) {
        PinGroupRec& group = m_groups[g];
        group.state = GroupImage(group);
        m_list->InsertItem(m_list->GetItemCount(), QString::fromStdString(group.group),
                           group.state);
        m_rows.emplace_back(static_cast<int>(g), -1);
        if (!group.isOpen) continue;
        for (size_t p = 0; p < group.pins.size(); ++p) {
            auto text = m_pinTexts.find(group.pins[p]);
            m_list->InsertItem(
                m_list->GetItemCount(),
                QString::fromStdString(text != m_pinTexts.end() ? text->second : group.pins[p]),
                kImagePin);
            m_rows.emplace_back(static_cast<int>(g), static_cast<int>(p));
        }
    }
}

int CDragDropListCtrl::GroupOfRow(int row) const {
    if (row < 0 || row >= static_cast<int>(m_rows.size())) return -1;
    return m_rows[static_cast<size_t>(row)].first;
}

std::string CDragDropListCtrl::PinOfRow(int row) const {
    if (row < 0 || row >= static_cast<int>(m_rows.size())) return "";
    auto [group, pin] = m_rows[static_cast<size_t>(row)];
    if (pin < 0) return "";
    return m_groups[static_cast<size_t>(group)].pins[static_cast<size_t>(pin)];
}

int CDragDropListCtrl::RowOfGroup(const std::string& name) const {
    for (size_t r = 0; r < m_rows.size(); ++r)
        if (m_rows[r].second < 0 && m_groups[static_cast<size_t>(m_rows[r].first)].group == name)
            return static_cast<int>(r);
    return -1;
}

void CDragDropListCtrl::Toggle(int row) {
    int group = GroupOfRow(row);
    if (group < 0 || !PinOfRow(row).empty()) return;
    PinGroupRec& rec = m_groups[static_cast<size_t>(group)];
    rec.isOpen = rec.isOpen ? 0 : 1;
    Refresh();
}

void CDragDropListCtrl::SetOpen(const std::string& group, bool open) {
    for (PinGroupRec& rec : m_groups)
        if (rec.group == group) rec.isOpen = open ? 1 : 0;
    Refresh();
}

bool CDragDropListCtrl::DropOn(int row) {
    int target = GroupOfRow(row);
    if (target < 0 || !PinOfRow(row).empty()) return false;
    std::vector<std::string> pins;
    for (int chosen : m_list->GetSelectedRows()) {
        std::string pin = PinOfRow(chosen);
        if (!pin.empty()) pins.push_back(pin);
    }
    if (pins.empty()) return false;
    std::vector<std::string> emptied = MovePins(m_groups, pins, static_cast<size_t>(target));
    Refresh();
    if (!emptied.empty() && m_onEmptied) m_onEmptied(emptied);
    return true;
}

bool CDragDropListCtrl::eventFilter(QObject* watched, QEvent* event) {
    if (!m_list || watched != m_list->viewport()) return false;
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove &&
        type != QEvent::MouseButtonRelease)
        return false;
    auto* mouse = static_cast<QMouseEvent*>(event);
    switch (type) {
        case QEvent::MouseButtonPress:
            return mouse->button() == Qt::LeftButton && OnPress(mouse->pos());
        case QEvent::MouseMove:
            if (mouse->buttons() & Qt::LeftButton) OnMove(mouse->pos());
            return m_dragging;
        case QEvent::MouseButtonRelease:
            if (mouse->button() == Qt::LeftButton) OnRelease(mouse->pos());
            return false;
        default:
            return false;
    }
}

// A press on a group's picture opens or closes it and is not a selection.
bool CDragDropListCtrl::OnPress(const QPoint& point) {
    const int row = m_list->HitTest(point);
    m_dragging = false;
    m_pressPoint = point;
    m_pressedOnPin = row >= 0 && !PinOfRow(row).empty();
    if (row < 0 || m_pressedOnPin) return false;
    const QRect rect = m_list->GetRowRect(row);
    if (point.x() - rect.left() >= kToggleSide || point.y() - rect.top() >= kToggleSide)
        return false;
    Toggle(row);
    return true;
}

void CDragDropListCtrl::OnMove(const QPoint& point) {
    if (!m_pressedOnPin) return;
    if (!m_dragging && (point - m_pressPoint).manhattanLength() < QApplication::startDragDistance())
        return;
    m_dragging = true;
    const int height = m_list->viewport()->height();
    m_scrollDirection = point.y() < 0 ? -1 : point.y() >= height ? 1 : 0;
    if (m_scrollDirection != 0 && !m_scrollTimer->isActive()) m_scrollTimer->start();
    if (m_scrollDirection == 0) m_scrollTimer->stop();
}

void CDragDropListCtrl::OnRelease(const QPoint& point) {
    m_scrollTimer->stop();
    const bool dragging = m_dragging;
    m_dragging = false;
    m_pressedOnPin = false;
    if (dragging) DropOn(m_list->HitTest(point));
}

void CDragDropListCtrl::ScrollStep() {
    QScrollBar* bar = m_list->verticalScrollBar();
    bar->setValue(bar->value() + m_scrollDirection * bar->singleStep());
}

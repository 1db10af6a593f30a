#include "dialogs/ColorButton.h"

#include <QEvent>
#include <QObject>
#include <QPainter>
#include <QWidget>

#include "dialogs/forms/NetColorTable.h"

// Paints the swatch's widget in its colour; a default swatch is left to the button's own face.
class CColorButton::Painter : public QObject {
  public:
    explicit Painter(const CColorButton& owner) : m_owner(owner) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || m_owner.IsDefault()) return false;
        auto* widget = static_cast<QWidget*>(watched);
        QPainter painter(widget);
        const QRect box = widget->rect().adjusted(0, 0, -1, -1);
        painter.fillRect(box, NetColorToQColor(m_owner.GetColor()));
        painter.setPen(widget->palette().color(QPalette::Dark));
        painter.drawRect(box);
        return true;
    }

  private:
    const CColorButton& m_owner;
};

CColorButton::CColorButton() : m_painter(std::make_unique<Painter>(*this)) {}

CColorButton::~CColorButton() {
    if (QWidget* widget = GetHandle()) widget->removeEventFilter(m_painter.get());
}

void CColorButton::SetColor(uint32_t colour, bool isDefault) {
    m_colour = colour;
    m_bDefault = isDefault;
    Repaint();
}

void CColorButton::Repaint() {
    QWidget* widget = GetHandle();
    if (!widget) return;
    // Installing again moves the filter to the front; it is never installed twice.
    widget->installEventFilter(m_painter.get());
    widget->update();
}

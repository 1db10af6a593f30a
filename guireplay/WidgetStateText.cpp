#include "guireplay/WidgetStateText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QVariant>

#include "guireplay/RecordXml.h"
#include "guireplay/WidgetPath.h"

namespace guireplay {

namespace {

const QString kIndent = QStringLiteral("    ");

QString NameOf(const QWidget* w) {
    QString name = QString::fromLatin1(w->metaObject()->className());
    if (!w->objectName().isEmpty()) name += QLatin1Char('#') + w->objectName();
    return name;
}

QString EnabledWord(const QWidget* w) {
    return w->isEnabled() ? QStringLiteral("Enabled") : QStringLiteral("Disabled");
}

QString CheckWord(bool checked) {
    return checked ? QStringLiteral("Checked") : QStringLiteral("Unchecked");
}

QString ItemState(const QModelIndex& index) {
    QString out;
    const QVariant check = index.data(Qt::CheckStateRole);
    if (check.isValid()) {
        switch (check.toInt()) {
            case Qt::Checked:
                out += QStringLiteral(" [Checked]");
                break;
            case Qt::PartiallyChecked:
                out += QStringLiteral(" [PartialChecked]");
                break;
            default:
                out += QStringLiteral(" [Unchecked]");
                break;
        }
    }
    if (!(index.flags() & Qt::ItemIsEnabled)) out += QStringLiteral(" [Disabled]");
    return out;
}

class StateWriter {
  public:
    QString Take() { return m_text; }

    void Window(const QWidget* window) {
        Line(window, DisplayText(window), EnabledWord(window));
        Children(window);
    }

  private:
    void Line(const QWidget* w, const QString& text, const QString& state) {
        m_text += QStringLiteral("%1: \"%2\", %3\n").arg(NameOf(w), EncodeLineBreaks(text), state);
    }

    void Separator() { m_text += QStringLiteral("--------\n"); }

    void Items(const QAbstractItemModel* model, const QModelIndex& parent, const QString& indent,
               int column) {
        for (int r = 0; r < model->rowCount(parent); ++r) {
            QStringList cells;
            const int columns = column >= 0 ? 1 : model->columnCount(parent);
            for (int c = 0; c < columns; ++c) {
                const int col = column >= 0 ? column : c;
                cells << QLatin1Char('"') +
                             EncodeLineBreaks(model->index(r, col, parent).data().toString()) +
                             QLatin1Char('"');
            }
            const QModelIndex first = model->index(r, column >= 0 ? column : 0, parent);
            m_text += QStringLiteral("%1: %2").arg(indent + QString::number(r), cells.join(", "));
            m_text += ItemState(first) + QLatin1Char('\n');
            if (model->hasChildren(first)) Items(model, first, indent + kIndent, column);
        }
    }

    void ItemView(const QAbstractItemView* view) {
        const QAbstractItemModel* model = view->model();
        const int rows = model ? model->rowCount(view->rootIndex()) : 0;
        const int columns = model ? model->columnCount(view->rootIndex()) : 0;
        m_text += QStringLiteral("%1: items=%2 columns=%3, %4\n")
                      .arg(NameOf(view))
                      .arg(rows)
                      .arg(columns)
                      .arg(EnabledWord(view));
        if (rows == 0) return;
        m_text += QStringLiteral("%1items:\n").arg(kIndent);
        Items(model, view->rootIndex(), kIndent, -1);
    }

    void Combo(const QComboBox* combo) {
        Line(combo, combo->currentText(), EnabledWord(combo));
        if (combo->count() == 0) return;
        m_text += QStringLiteral("%1items:\n").arg(kIndent);
        Items(combo->model(), combo->rootModelIndex(), kIndent, combo->modelColumn());
    }

    void Tabs(const QTabWidget* tabs) {
        Line(tabs, tabs->tabText(tabs->currentIndex()), EnabledWord(tabs));
        m_text += QStringLiteral("%1Tabs:\n").arg(kIndent);
        for (int i = 0; i < tabs->count(); ++i) {
            m_text +=
                QStringLiteral("%1: \"%2\"").arg(kIndent + QString::number(i), tabs->tabText(i));
            m_text +=
                tabs->isTabEnabled(i) ? QStringLiteral("\n") : QStringLiteral(" [Disabled]\n");
        }
        for (int i = 0; i < tabs->count(); ++i) {
            Separator();
            Widget(tabs->widget(i));
        }
    }

    // True when the widget was written whole, its inner widgets included.
    bool Leaf(const QWidget* w) {
        const QVariant custom = w->property("GUIRecChkCustomContent");
        if (custom.isValid() && custom.type() == QVariant::String) {
            Line(w, custom.toString(), EnabledWord(w));
        } else if (auto view = qobject_cast<const QAbstractItemView*>(w)) {
            ItemView(view);
        } else if (auto combo = qobject_cast<const QComboBox*>(w)) {
            Combo(combo);
        } else if (auto tabs = qobject_cast<const QTabWidget*>(w)) {
            Tabs(tabs);
        } else if (auto label = qobject_cast<const QLabel*>(w)) {
            m_text +=
                QStringLiteral("%1: \"%2\"\n").arg(NameOf(w), EncodeLineBreaks(label->text()));
        } else if (auto button = qobject_cast<const QAbstractButton*>(w)) {
            QString state = EnabledWord(w);
            if (button->isCheckable())
                state += QStringLiteral(", ") + CheckWord(button->isChecked());
            Line(w, button->text(), state);
        } else if (auto edit = qobject_cast<const QLineEdit*>(w)) {
            Line(w, edit->text(), EnabledWord(w));
        } else if (auto text = qobject_cast<const QTextEdit*>(w)) {
            Line(w, text->toPlainText(), EnabledWord(w));
        } else if (auto plain = qobject_cast<const QPlainTextEdit*>(w)) {
            Line(w, plain->toPlainText(), EnabledWord(w));
        } else if (auto spin = qobject_cast<const QAbstractSpinBox*>(w)) {
            Line(w, spin->text(), EnabledWord(w));
        } else if (auto bar = qobject_cast<const QProgressBar*>(w)) {
            Line(w, QString::number(bar->value()), EnabledWord(w));
        } else if (qobject_cast<const QScrollBar*>(w)) {
            // Scroll positions depend on fonts and window size.
        } else if (auto slider = qobject_cast<const QAbstractSlider*>(w)) {
            Line(w, QString::number(slider->value()), EnabledWord(w));
        } else {
            return false;
        }
        return true;
    }

    void Widget(const QWidget* w) {
        if (HasFlag(w, "GUIREPLAYHIDDEN") || w->isWindow()) return;
        if (auto box = qobject_cast<const QGroupBox*>(w)) {
            Separator();
            QString state = EnabledWord(w);
            if (box->isCheckable()) state += QStringLiteral(", ") + CheckWord(box->isChecked());
            Line(w, box->title(), state);
            Children(w);
            return;
        }
        if (!Leaf(w)) Children(w);
    }

    void Children(const QWidget* parent) {
        for (const QObject* child : parent->children()) {
            if (child->isWidgetType()) Widget(static_cast<const QWidget*>(child));
        }
    }

    QString m_text;
};

}  // namespace

QString WidgetStateText(const QWidget* window) {
    StateWriter writer;
    writer.Window(window);
    return writer.Take();
}

}  // namespace guireplay

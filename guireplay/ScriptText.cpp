#include "guireplay/ScriptText.h"

#include <QEvent>
#include <QFile>
#include <QKeySequence>

#include "guireplay/ExtraIndex.h"

namespace guireplay {

namespace {

// A pause this long is kept in the script, where a person can shorten or drop it.
constexpr int kLongPauseMs = 3000;

// Script lines stay single lines, whatever a title holds.
QString OneLine(const QString& text) {
    QString out = text;
    return out.replace(QLatin1Char('\n'), QStringLiteral("\\n"))
        .replace(QLatin1Char('\r'), QStringLiteral("\\r"));
}

QString Quoted(const QString& text) {
    QString out = text;
    out.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    out.replace(QLatin1Char('"'), QStringLiteral("\\\""));
    return QLatin1Char('"') + OneLine(out) + QLatin1Char('"');
}

QString LevelText(const WidgetLevel& level, bool top) {
    if (level.objectName.isEmpty()) {
        const QString& text = level.windowTitle.isEmpty() ? level.className : level.windowTitle;
        return QStringLiteral("[%1]").arg(Quoted(text));
    }
    if (level.keyTitle || top)
        return QStringLiteral("[#%1, %2]").arg(level.objectName, Quoted(level.windowTitle));
    return QStringLiteral("[#%1]").arg(level.objectName);
}

QString PosText(QPointF p) {
    if (p == p.toPoint()) return QString::asprintf("(%d,%d)", int(p.x()), int(p.y()));
    return QString::asprintf("(%lf,%lf)", p.x(), p.y());
}

bool IsModifierKey(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_Meta || key == Qt::Key_AltGr;
}

bool SameTarget(const Step& a, const Step& b) {
    return WidgetPathText(a.location) == WidgetPathText(b.location);
}

QString ButtonSuffix(int button) {
    if (button == Qt::RightButton) return QStringLiteral("(Right)");
    if (button == Qt::MiddleButton) return QStringLiteral("(Middle)");
    return QString();
}

// Grows a script step over the events that belong to it, from steps[i] on.
class Grouper {
  public:
    Grouper(const QVector<Step>& steps, bool fullLog) : m_steps(steps), m_fullLog(fullLog) {}

    ScriptStep Next(int i) {
        const Step& s = m_steps[i];
        ScriptStep out;
        out.first = i;
        out.count = 1;
        out.window = TopText(s.location);
        const QString path = WidgetPathText(s.location);
        if (s.checkPoint) {
            out.core =
                QStringLiteral("CheckPoint: KeyInputs %1 %2").arg(Quoted(KeyText(s.event)), path);
            return out;
        }
        switch (s.event.type) {
            case QEvent::MouseButtonPress:
                return Click(out, path);
            case QEvent::MouseButtonDblClick:
                return DoubleClick(out, path);
            case QEvent::MouseMove:
            case QEvent::Wheel:
                return MoveGroup(out, path);
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
                return Keys(out, path);
            case QEvent::InputMethod:
                out.core =
                    QStringLiteral("Event: InputMethod %1 %2").arg(Quoted(s.event.commit), path);
                return out;
            default:
                break;
        }
        // A lone release or context menu still shows as a click; focus changes are played
        // from the record only.
        if (KindOf(s.event.type) == EventKind::Mouse || s.event.type == QEvent::ContextMenu) {
            out.core = QStringLiteral("Event: MouseClick %1 %2").arg(path, PosText(s.event.pos));
            return TakeContextMenu(out);
        }
        out.inScript = false;
        return out;
    }

  private:
    static QString TopText(const WidgetLocation& loc) {
        if (loc.levels.isEmpty()) return QString();
        const WidgetLevel& top = loc.levels.first();
        return top.windowTitle.isEmpty() ? top.className : top.windowTitle;
    }

    bool Continues(const ScriptStep& out, int type) const {
        int j = out.first + out.count;
        return j < m_steps.size() && !m_steps[j].checkPoint && m_steps[j].event.type == type &&
               SameTarget(m_steps[j], m_steps[out.first]);
    }

    ScriptStep& TakeContextMenu(ScriptStep& out) {
        if (Continues(out, QEvent::ContextMenu)) ++out.count;
        return out;
    }

    ScriptStep Click(ScriptStep& out, const QString& path) {
        const RecordedEvent& press = m_steps[out.first].event;
        bool moved = false;
        while (Continues(out, QEvent::MouseMove)) {
            moved = true;
            ++out.count;
        }
        QPointF end = press.pos;
        if (Continues(out, QEvent::MouseButtonRelease)) {
            end = m_steps[out.first + out.count].event.pos;
            ++out.count;
        }
        const QString button = ButtonSuffix(press.button);
        if (moved && end != press.pos) {
            out.core = QStringLiteral("Event: MouseDrag%1 %2 %3 to %4")
                           .arg(button, path, PosText(press.pos), PosText(end));
        } else {
            out.core =
                QStringLiteral("Event: MouseClick%1 %2 %3").arg(button, path, PosText(press.pos));
        }
        return TakeContextMenu(out);
    }

    ScriptStep DoubleClick(ScriptStep& out, const QString& path) {
        const RecordedEvent& e = m_steps[out.first].event;
        if (Continues(out, QEvent::MouseButtonRelease)) ++out.count;
        out.core = QStringLiteral("Event: MouseDblClick%1 %2 %3")
                       .arg(ButtonSuffix(e.button), path, PosText(e.pos));
        return out;
    }

    ScriptStep MoveGroup(ScriptStep& out, const QString& path) {
        int wheel = 0;
        const Step& first = m_steps[out.first];
        bool hasData = first.hasExtraInfo;
        for (;;) {
            const RecordedEvent& e = m_steps[out.first + out.count - 1].event;
            if (e.type == QEvent::Wheel) wheel += e.angleDelta.y() + e.angleDelta.x();
            if (!Continues(out, QEvent::MouseMove) && !Continues(out, QEvent::Wheel)) break;
            ++out.count;
            hasData = hasData || m_steps[out.first + out.count - 1].hasExtraInfo;
        }
        const RecordedEvent& last = m_steps[out.first + out.count - 1].event;
        out.core = QStringLiteral("Event: MouseMoveGroup %1 %2 to %3 events=%4")
                       .arg(path, PosText(first.event.pos), PosText(last.pos))
                       .arg(out.count);
        if (wheel != 0) out.core += QStringLiteral(" wheel=%1").arg(wheel);
        out.inScript = m_fullLog || hasData;
        return out;
    }

    ScriptStep Keys(ScriptStep& out, const QString& path) {
        QString text;
        for (;;) {
            const RecordedEvent& e = m_steps[out.first + out.count - 1].event;
            if (e.type == QEvent::KeyPress) text += KeyText(e);
            if (!Continues(out, QEvent::KeyPress) && !Continues(out, QEvent::KeyRelease)) break;
            ++out.count;
        }
        out.core = QStringLiteral("Event: KeyInputs %1 %2").arg(Quoted(text), path);
        return out;
    }

    const QVector<Step>& m_steps;
    bool m_fullLog;
};

}  // namespace

QString WidgetPathText(const WidgetLocation& location) {
    QStringList parts;
    const int n = location.levels.size();
    for (int i = 0; i < n; ++i) {
        const WidgetLevel& level = location.levels[i];
        // Unnamed levels between the window and the target say nothing to a reader.
        if (i != 0 && i != n - 1 && level.objectName.isEmpty()) continue;
        parts << LevelText(level, i == 0);
    }
    QString path = parts.join(QStringLiteral(" -> "));
    if (!location.extraIndex.isEmpty()) path += QLatin1Char(' ') + SpotSummary(location.extraIndex);
    return path;
}

QString KeyText(const RecordedEvent& e) {
    if (IsModifierKey(e.key)) return QString();
    const bool plain = (e.modifiers & ~int(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    if (plain && !e.text.isEmpty() && e.text.at(0).isPrint()) {
        QString t = e.text;
        t.replace(QLatin1Char('{'), QStringLiteral("{{}"));
        return t;
    }
    return QLatin1Char('{') + QKeySequence(e.key | e.modifiers).toString() + QLatin1Char('}');
}

QVector<ScriptStep> GroupSteps(const Session& session, bool fullLog) {
    QVector<ScriptStep> out;
    Grouper grouper(session.steps, fullLog);
    for (int i = 0; i < session.steps.size();) {
        ScriptStep step = grouper.Next(i);
        i += step.count;
        out.push_back(step);
    }
    return out;
}

QString SystemBlock(const SystemInfo& s) {
    const double gb = double(s.physicalMemory) / (1024.0 * 1024.0 * 1024.0);
    return QString::asprintf(
        "#Number of Processer:%d\n#Memory Size:%.6lfGB\n#OS:%s\n#DPI:%d,%d\n#Resolution:%dx%d\n"
        "#Tool Version:%s\n#MainWindow Size:%dx%d\n",
        s.cpuCount, gb, qUtf8Printable(s.osPrettyName), s.dpi.x(), s.dpi.y(), s.resolution.width(),
        s.resolution.height(), qUtf8Printable(s.toolVersion), s.mainWindowSize.width(),
        s.mainWindowSize.height());
}

QString ScriptText(const Session& session, bool fullLog) {
    QString text = QString::asprintf("##Version=%d\n", fullLog ? 0 : 1);
    text += SystemBlock(session.system);
    QString window;
    bool first = true;
    for (const ScriptStep& step : GroupSteps(session, fullLog)) {
        if (!step.inScript) continue;
        if (first || step.window.compare(window, Qt::CaseInsensitive) != 0)
            text += QString::asprintf("\nWidget: %s\n", qUtf8Printable(OneLine(step.window)));
        first = false;
        window = step.window;
        text += step.core;
        const Step& head = session.steps[step.first];
        if (head.delay >= kLongPauseMs)
            text += QString::asprintf(" <Delay=%.3lf>", head.delay / 1000.0);
        if (head.async) text += QStringLiteral(" <Async>");
        text += QLatin1Char('\n');
    }
    return text;
}

bool SaveScript(const QString& path, const Session& session, bool fullLog) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    const QByteArray bytes = ScriptText(session, fullLog).toUtf8();
    return file.write(bytes) == bytes.size() && file.flush();
}

}  // namespace guireplay

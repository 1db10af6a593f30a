#include <QFile>
#include <QXmlStreamWriter>

#include "guireplay/RecordXml.h"

namespace guireplay {

QString EncodeLineBreaks(const QString& text) {
    QString out = text;
    out.replace(QLatin1Char('\n'), QStringLiteral("&#x0A"));
    out.replace(QLatin1Char('\r'), QStringLiteral("&#x0D"));
    return out;
}

namespace {

QString Pair(double x, double y) {
    return QString::number(x, 'g', 12) + QLatin1Char(',') + QString::number(y, 'g', 12);
}

class XmlOut {
  public:
    explicit XmlOut(QIODevice& device) : m_xml(&device) { m_xml.setAutoFormatting(true); }
    QXmlStreamWriter& xml() { return m_xml; }

    void Text(const char* name, const QString& value) {
        m_xml.writeTextElement(QLatin1String(name), EncodeLineBreaks(value));
    }
    void Number(const char* name, qint64 value) { Text(name, QString::number(value)); }
    void Point(const char* name, QPointF p) { Text(name, Pair(p.x(), p.y())); }

    void Header(const SystemInfo& s) {
        m_xml.writeStartElement(QStringLiteral("Header"));
        m_xml.writeAttribute(QStringLiteral("version"), QString::number(kRecordVersion));
        Number("OSVersion", s.osVersion);
        Text("OSPrettyName", s.osPrettyName);
        Number("CPUCount", s.cpuCount);
        Text("PhysicalMemory", QString::number(s.physicalMemory));
        Point("DPI", s.dpi);
        Text("Resolution", Pair(s.resolution.width(), s.resolution.height()));
        Text("EnvVarList", s.envVarList);
        Text("ToolVersion", s.toolVersion);
        Text("MainWindowSize", Pair(s.mainWindowSize.width(), s.mainWindowSize.height()));
        m_xml.writeEndElement();
    }

    void Location(const WidgetLocation& loc) {
        m_xml.writeStartElement(QStringLiteral("LocateWidget"));
        m_xml.writeAttribute(QStringLiteral("TopisMain"), loc.topIsMain ? "1" : "0");
        m_xml.writeStartElement(QStringLiteral("WidgetList"));
        for (const WidgetLevel& level : loc.levels) {
            m_xml.writeStartElement(QStringLiteral("Widget"));
            if (level.keyTitle) m_xml.writeAttribute(QStringLiteral("KeyTitle"), "1");
            Text("ClassName", level.className);
            Text("ObjectName", level.objectName);
            Text("WindowTitle", level.windowTitle);
            Point("Pos", level.pos);
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
        Point("PtRefToTop", loc.ptRefToTop);
        Text("ExtraIndex", loc.extraIndex);
        m_xml.writeEndElement();
    }

    void Mouse(const RecordedEvent& e) {
        Point("Pos", e.pos);
        Point("WndPos", e.wndPos);
        Point("GlobalPos", e.globalPos);
        Number("Button", e.button);
        Number("Buttons", e.buttons);
        Number("Modifiers", e.modifiers);
        Number("Source", e.source);
        Text("Timestamp", QString::number(e.timestamp));
    }
    void Wheel(const RecordedEvent& e) {
        Point("PosF", e.pos);
        Point("GlobalPosF", e.globalPos);
        Point("PixelDelta", e.pixelDelta);
        Point("AngleDelta", e.angleDelta);
        Number("Delta", e.delta);
        Number("Orientation", e.orientation);
        Number("Buttons", e.buttons);
        Number("Modifiers", e.modifiers);
        Number("Phase", e.phase);
        Number("Source", e.source);
    }
    void Key(const RecordedEvent& e) {
        Number("Key", e.key);
        Number("Modifiers", e.modifiers);
        Number("NativeScanCode", e.nativeScanCode);
        Number("NativeVirtualKey", e.nativeVirtualKey);
        Number("NativeModifiers", e.nativeModifiers);
        Text("Text", e.text);
        Number("AutoRepeat", e.autoRepeat ? 1 : 0);
        Number("Count", e.count);
        Text("Timestamp", QString::number(e.timestamp));
    }
    void ContextMenu(const RecordedEvent& e) {
        Point("Pos", e.pos);
        Point("GlobalPos", e.globalPos);
        Number("Reason", e.reason);
        Number("Modifiers", e.modifiers);
        Text("Timestamp", QString::number(e.timestamp));
    }
    void InputMethod(const RecordedEvent& e) {
        for (const ImAttribute& a : e.attributes) {
            m_xml.writeStartElement(QStringLiteral("Attribute"));
            Number("Type", a.type);
            Number("Start", a.start);
            Number("Length", a.length);
            Text("Value", a.value);
            m_xml.writeEndElement();
        }
        Text("Preedit", e.preedit);
        Text("Commit", e.commit);
        Number("ReplaceStart", e.replaceStart);
        Number("ReplaceLength", e.replaceLength);
    }

    void Event(const RecordedEvent& e) {
        m_xml.writeStartElement(QStringLiteral("Event"));
        m_xml.writeAttribute(QStringLiteral("Type"), QString::number(e.type));
        switch (KindOf(e.type)) {
            case EventKind::Mouse:
                Mouse(e);
                break;
            case EventKind::Wheel:
                Wheel(e);
                break;
            case EventKind::Key:
                Key(e);
                break;
            case EventKind::ContextMenu:
                ContextMenu(e);
                break;
            case EventKind::InputMethod:
                InputMethod(e);
                break;
            case EventKind::Focus:
                Number("FocusReason", e.focusReason);
                break;
            case EventKind::Other:
                break;
        }
        m_xml.writeEndElement();
    }

    void Step(const guireplay::Step& step) {
        m_xml.writeStartElement(step.checkPoint ? QStringLiteral("CheckPoint")
                                                : QStringLiteral("EventInfo"));
        Location(step.location);
        Event(step.event);
        if (step.delay > 0) Number("Delay", step.delay);
        if (step.hasExtraInfo) {
            m_xml.writeEmptyElement(QStringLiteral("HasExtraInfo"));
            Text("ExtraInfo", step.extraInfo);
        }
        if (step.hasRealPos) {
            Text("RealPos", QString::asprintf("%.9le,%.9le", step.realPos.x(), step.realPos.y()));
        }
        if (step.async) m_xml.writeEmptyElement(QStringLiteral("ASync"));
        m_xml.writeEndElement();
    }

  private:
    QXmlStreamWriter m_xml;
};

}  // namespace

bool WriteRecordXml(QIODevice& device, const Session& session) {
    XmlOut out(device);
    QXmlStreamWriter& xml = out.xml();
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("GUI_Record"));
    xml.writeAttribute(QStringLiteral("version"), QString::number(kRecordVersion));
    out.Header(session.system);
    for (const Step& step : session.steps) out.Step(step);
    xml.writeEndElement();
    xml.writeEndDocument();
    return !xml.hasError();
}

bool SaveRecordXml(const QString& path, const Session& session) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    return WriteRecordXml(file, session) && file.flush();
}

}  // namespace guireplay

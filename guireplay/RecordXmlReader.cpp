#include <QFile>
#include <QXmlStreamReader>
#include <memory>
#include <vector>

#include "guireplay/RecordXml.h"

namespace guireplay {

QString DecodeLineBreaks(const QString& text) {
    QString out = text;
    out.replace(QStringLiteral("&#x0A"), QStringLiteral("\n"));
    out.replace(QStringLiteral("&#x0D"), QStringLiteral("\r"));
    return out;
}

namespace {

// One element with its attributes, text and children, as the stream reader gave them.
struct Node {
    QString name;
    QXmlStreamAttributes attributes;
    QString text;
    std::vector<std::unique_ptr<Node>> children;

    const Node* Child(const char* childName) const {
        for (const auto& c : children)
            if (c->name == QLatin1String(childName)) return c.get();
        return nullptr;
    }
    QString Text(const char* childName) const {
        const Node* c = Child(childName);
        return c ? DecodeLineBreaks(c->text) : QString();
    }
    qint64 Number(const char* childName) const { return Text(childName).toLongLong(); }
    QPointF Point(const char* childName) const {
        const QStringList parts = Text(childName).split(QLatin1Char(','));
        if (parts.size() != 2) return QPointF();
        return QPointF(parts[0].toDouble(), parts[1].toDouble());
    }
    QString Attribute(const char* attr) const {
        return attributes.value(QLatin1String(attr)).toString();
    }
};

std::unique_ptr<Node> ReadElement(QXmlStreamReader& xml) {
    auto node = std::make_unique<Node>();
    node->name = xml.name().toString();
    node->attributes = xml.attributes();
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            node->children.push_back(ReadElement(xml));
        } else if (xml.isCharacters()) {
            node->text += xml.text();
        } else if (xml.isEndElement()) {
            break;
        }
    }
    return node;
}

QSize SizeOf(QPointF p) {
    return QSize(int(p.x()), int(p.y()));
}

void ReadHeader(const Node& n, SystemInfo& s) {
    s.osVersion = int(n.Number("OSVersion"));
    s.osPrettyName = n.Text("OSPrettyName");
    s.cpuCount = int(n.Number("CPUCount"));
    s.physicalMemory = n.Text("PhysicalMemory").toULongLong();
    s.dpi = n.Point("DPI").toPoint();
    s.resolution = SizeOf(n.Point("Resolution"));
    s.envVarList = n.Text("EnvVarList");
    s.toolVersion = n.Text("ToolVersion");
    s.mainWindowSize = SizeOf(n.Point("MainWindowSize"));
}

void ReadLocation(const Node& n, WidgetLocation& loc) {
    loc.topIsMain = n.Attribute("TopisMain") == QLatin1String("1");
    if (const Node* list = n.Child("WidgetList")) {
        for (const auto& w : list->children) {
            WidgetLevel level;
            level.keyTitle = w->Attribute("KeyTitle") == QLatin1String("1");
            level.className = w->Text("ClassName");
            level.objectName = w->Text("ObjectName");
            level.windowTitle = w->Text("WindowTitle");
            level.pos = w->Point("Pos").toPoint();
            loc.levels.push_back(level);
        }
    }
    loc.ptRefToTop = n.Point("PtRefToTop").toPoint();
    loc.extraIndex = n.Text("ExtraIndex");
}

void ReadMouse(const Node& n, RecordedEvent& e) {
    e.pos = n.Point("Pos");
    e.wndPos = n.Point("WndPos");
    e.globalPos = n.Point("GlobalPos");
    e.button = int(n.Number("Button"));
    e.buttons = int(n.Number("Buttons"));
    e.modifiers = int(n.Number("Modifiers"));
    e.source = int(n.Number("Source"));
    e.timestamp = n.Text("Timestamp").toULongLong();
}

void ReadWheel(const Node& n, RecordedEvent& e) {
    e.pos = n.Point("PosF");
    e.globalPos = n.Point("GlobalPosF");
    e.pixelDelta = n.Point("PixelDelta").toPoint();
    e.angleDelta = n.Point("AngleDelta").toPoint();
    e.delta = int(n.Number("Delta"));
    e.orientation = int(n.Number("Orientation"));
    e.buttons = int(n.Number("Buttons"));
    e.modifiers = int(n.Number("Modifiers"));
    e.phase = int(n.Number("Phase"));
    e.source = int(n.Number("Source"));
}

void ReadKey(const Node& n, RecordedEvent& e) {
    e.key = int(n.Number("Key"));
    e.modifiers = int(n.Number("Modifiers"));
    e.nativeScanCode = quint32(n.Number("NativeScanCode"));
    e.nativeVirtualKey = quint32(n.Number("NativeVirtualKey"));
    e.nativeModifiers = quint32(n.Number("NativeModifiers"));
    e.text = n.Text("Text");
    e.autoRepeat = n.Number("AutoRepeat") != 0;
    e.count = int(n.Number("Count"));
    e.timestamp = n.Text("Timestamp").toULongLong();
}

void ReadContextMenu(const Node& n, RecordedEvent& e) {
    e.pos = n.Point("Pos");
    e.globalPos = n.Point("GlobalPos");
    e.reason = int(n.Number("Reason"));
    e.modifiers = int(n.Number("Modifiers"));
    e.timestamp = n.Text("Timestamp").toULongLong();
}

void ReadInputMethod(const Node& n, RecordedEvent& e) {
    for (const auto& c : n.children) {
        if (c->name != QLatin1String("Attribute")) continue;
        ImAttribute a;
        a.type = int(c->Number("Type"));
        a.start = int(c->Number("Start"));
        a.length = int(c->Number("Length"));
        a.value = c->Text("Value");
        e.attributes.push_back(a);
    }
    e.preedit = n.Text("Preedit");
    e.commit = n.Text("Commit");
    e.replaceStart = int(n.Number("ReplaceStart"));
    e.replaceLength = int(n.Number("ReplaceLength"));
}

void ReadEvent(const Node& n, RecordedEvent& e) {
    e.type = n.Attribute("Type").toInt();
    switch (KindOf(e.type)) {
        case EventKind::Mouse:
            ReadMouse(n, e);
            break;
        case EventKind::Wheel:
            ReadWheel(n, e);
            break;
        case EventKind::Key:
            ReadKey(n, e);
            break;
        case EventKind::ContextMenu:
            ReadContextMenu(n, e);
            break;
        case EventKind::InputMethod:
            ReadInputMethod(n, e);
            break;
        case EventKind::Focus:
            e.focusReason = int(n.Number("FocusReason"));
            break;
        case EventKind::Other:
            break;
    }
}

Step ReadStep(const Node& n) {
    Step step;
    step.checkPoint = n.name == QLatin1String("CheckPoint");
    if (const Node* loc = n.Child("LocateWidget")) ReadLocation(*loc, step.location);
    if (const Node* ev = n.Child("Event")) ReadEvent(*ev, step.event);
    step.delay = int(n.Number("Delay"));
    step.hasExtraInfo = n.Child("HasExtraInfo") != nullptr;
    step.extraInfo = n.Text("ExtraInfo");
    if (const Node* real = n.Child("RealPos")) {
        step.hasRealPos = true;
        step.realPos = n.Point("RealPos");
        (void)real;
    }
    step.async = n.Child("ASync") != nullptr;
    return step;
}

}  // namespace

bool ReadRecordXml(QIODevice& device, Session& session, QString& error) {
    QXmlStreamReader xml(&device);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("GUI_Record")) {
        error = QStringLiteral("not a GUI record");
        return false;
    }
    std::unique_ptr<Node> root = ReadElement(xml);
    if (xml.hasError()) {
        error = xml.errorString();
        return false;
    }
    session = Session();
    for (const auto& c : root->children) {
        if (c->name == QLatin1String("Header")) {
            ReadHeader(*c, session.system);
        } else if (c->name == QLatin1String("EventInfo") ||
                   c->name == QLatin1String("CheckPoint")) {
            session.steps.push_back(ReadStep(*c));
        }
    }
    return true;
}

bool LoadRecordXml(const QString& path, Session& session, QString& error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return false;
    }
    return ReadRecordXml(file, session, error);
}

}  // namespace guireplay

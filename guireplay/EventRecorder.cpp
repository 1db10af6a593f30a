#include "guireplay/EventRecorder.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QWheelEvent>
#include <QWidget>

#include "guireplay/ExtraIndex.h"
#include "guireplay/RecordXml.h"
#include "guireplay/ReplayLogs.h"
#include "guireplay/ScriptText.h"
#include "guireplay/SystemProbe.h"
#include "guireplay/WidgetPath.h"
#include "guireplay/WidgetStateText.h"
#include "ui/CmdTarget.h"

namespace guireplay {

namespace {

// The recorder's own keys, never recorded.
constexpr int kShortcutMods = Qt::ControlModifier | Qt::ShiftModifier;
constexpr int kCheckPointKey = Qt::Key_F12;
constexpr int kStartStopKey = Qt::Key_F11;
constexpr int kLiveCheckPointKey = Qt::Key_F10;

bool FlagInChain(const QWidget* w, const char* property) {
    for (; w; w = w->parentWidget())
        if (HasFlag(w, property)) return true;
    return false;
}

quint64 StampOf(const QEvent* e) {
    if (auto input = dynamic_cast<const QInputEvent*>(e)) return input->timestamp();
    return 0;
}

QPoint PosOf(QWidget* receiver, const QEvent* e) {
    if (auto m = dynamic_cast<const QMouseEvent*>(e)) return m->pos();
    if (auto w = dynamic_cast<const QWheelEvent*>(e)) return w->position().toPoint();
    if (auto c = dynamic_cast<const QContextMenuEvent*>(e)) return c->pos();
    return receiver->rect().center();
}

void ConvertKey(const QKeyEvent* k, RecordedEvent& r) {
    r.key = k->key();
    r.modifiers = int(k->modifiers());
    r.nativeScanCode = k->nativeScanCode();
    r.nativeVirtualKey = k->nativeVirtualKey();
    r.nativeModifiers = k->nativeModifiers();
    r.text = k->text();
    r.autoRepeat = k->isAutoRepeat();
    r.count = k->count();
    r.timestamp = k->timestamp();
}

RecordedEvent CheckPointKey() {
    RecordedEvent r;
    r.type = QEvent::KeyPress;
    r.key = kCheckPointKey;
    r.modifiers = kShortcutMods;
    return r;
}

QWidget* ActiveWindowFor(QWidget* fallback) {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    return fallback ? fallback->window() : nullptr;
}

bool WriteText(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    const QByteArray bytes = text.toUtf8();
    return file.write(bytes) == bytes.size() && file.flush();
}

}  // namespace

EventRecorder::EventRecorder(const ReplaySettings& settings) : m_settings(settings) {}

void EventRecorder::Launch() {
    if (!m_settings.manual) Start();
}

void EventRecorder::Start() {
    m_session = Session();
    // Taken now: at the end of the process the screens may be gone already.
    m_session.system = ProbeSystem(nullptr);
    m_checkPoints.clear();
    m_mainWindow.clear();
    m_base = m_settings.SessionBase(SessionStamp());
    const QString folder = m_settings.RecordingFolder();
    AppendSessionLog(folder, QString::asprintf("Recording started. #Tool Version:%s\n",
                                               qUtf8Printable(ProbeSystem(nullptr).toolVersion)));
    AppendSessionLog(folder, QString::asprintf("Recording path:%s.\n", qUtf8Printable(m_base)));
    m_sinceLast.start();
    ResetLastCommandName();
    m_recording = true;
}

bool EventRecorder::Stop() {
    if (!m_recording) return true;
    NoteCommand();
    m_recording = false;
    QDir().mkpath(QFileInfo(m_base).path());
    bool ok = SaveRecordXml(m_base + QStringLiteral(".xml"), m_session);
    ok = WriteCheckPoints() && ok;
    ok = SaveScript(m_base + QStringLiteral(".brf"), m_session, m_settings.fullLog) && ok;
    AppendSessionLog(m_settings.RecordingFolder(), QStringLiteral("Recording stopped.\n"));
    return ok;
}

bool EventRecorder::WriteCheckPoints() const {
    if (m_checkPoints.isEmpty()) return true;
    const QDir dir(QFileInfo(m_base).dir().filePath(QStringLiteral("CheckPointFiles")));
    bool ok = QDir().mkpath(dir.path());
    for (int i = 0; i < m_checkPoints.size(); ++i) {
        const QString name = QString::asprintf("CheckPoint%d", i + 1);
        ok = WriteText(dir.filePath(name + QStringLiteral(".ckp")), m_checkPoints[i].text) && ok;
        ok = m_checkPoints[i].image.save(dir.filePath(name + QStringLiteral(".png")), "PNG") && ok;
    }
    return ok;
}

bool EventRecorder::SaveLiveCheckPoint(QWidget* window, const QString& ckpPath) {
    const QString prefix = QFileInfo(ckpPath).path() + QLatin1Char('/');
    const QString stamp = SessionStamp();
    bool ok = WriteText(ckpPath, WidgetStateText(window));
    const QString windowImage =
        QString::asprintf("%swindow_live_%s", qUtf8Printable(prefix), qUtf8Printable(stamp));
    ok = window->grab().save(windowImage + QStringLiteral(".png"), "PNG") && ok;
    if (QScreen* screen = window->screen()) {
        const QString screenImage =
            QString::asprintf("%sscreen_live_%s", qUtf8Printable(prefix), qUtf8Printable(stamp));
        ok = screen->grabWindow(0).save(screenImage + QStringLiteral(".png"), "PNG") && ok;
    }
    return ok;
}

void EventRecorder::TakeCheckPoint(QWidget* window) {
    if (!m_recording || !window) return;
    window = window->window();
    Step step;
    step.checkPoint = true;
    step.event = CheckPointKey();
    Add(window, step, window->rect().center());
    m_checkPoints.push_back({WidgetStateText(window), window->grab().toImage()});
}

bool EventRecorder::OwnKey(QWidget* receiver, QKeyEvent* key) {
    if (key->type() == QEvent::KeyRelease && m_swallowRelease) {
        m_swallowRelease = false;
        return true;
    }
    if (key->type() != QEvent::KeyPress || int(key->modifiers()) != kShortcutMods) return false;
    if (key->key() == kStartStopKey) {
        m_recording ? (void)Stop() : Start();
    } else if (key->key() == kCheckPointKey && m_recording) {
        TakeCheckPoint(ActiveWindowFor(receiver));
    } else if (key->key() == kLiveCheckPointKey) {
        QWidget* window = ActiveWindowFor(receiver);
        const QString path = QFileDialog::getSaveFileName(
            window, QStringLiteral("Save Check Point"), m_settings.RecordingFolder(),
            QStringLiteral("Check Point Files(*.ckp)"));
        if (!path.isEmpty()) SaveLiveCheckPoint(window, path);
    } else {
        return false;
    }
    m_swallowRelease = true;
    return true;
}

bool EventRecorder::Duplicate(QWidget* receiver, QEvent* event) {
    const bool same = event == m_lastEvent && int(event->type()) == m_lastType &&
                      StampOf(event) == m_lastStamp && m_lastReceiver &&
                      receiver->isAncestorOf(m_lastReceiver);
    if (same) m_lastReceiver = receiver;
    return same;
}

bool EventRecorder::Wanted(QWidget* receiver, QEvent* event) const {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ContextMenu:
            return true;
        case QEvent::MouseMove:
            return static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton ||
                   m_settings.fullLog || FlagInChain(receiver, "GUIRecMouseMove");
        case QEvent::Wheel:
            return m_settings.fullLog;
        case QEvent::InputMethod: {
            auto im = static_cast<QInputMethodEvent*>(event);
            return !im->commitString().isEmpty() || !im->preeditString().isEmpty();
        }
        default:
            return false;
    }
}

bool EventRecorder::Filter(QObject* object, QEvent* event) {
    if (!object->isWidgetType()) return false;
    auto receiver = static_cast<QWidget*>(object);
    const QEvent::Type type = event->type();
    if ((type == QEvent::KeyPress || type == QEvent::KeyRelease) &&
        OwnKey(receiver, static_cast<QKeyEvent*>(event)))
        return true;
    if (!m_recording || FlagInChain(receiver, "GUIREPLAYCTRL")) return false;
    if (type == QEvent::ShortcutOverride) {
        m_pendingShortcut = true;
        m_shortcutKey = Convert(event);
        m_shortcutKey.type = QEvent::KeyPress;
        m_shortcutReceiver = receiver;
        return false;
    }
    if (!event->spontaneous() || !Wanted(receiver, event) || Duplicate(receiver, event))
        return false;
    if (type == QEvent::KeyPress) m_pendingShortcut = false;
    if (type == QEvent::KeyRelease) AddPendingShortcut(receiver, static_cast<QKeyEvent*>(event));
    Step step;
    step.event = Convert(event);
    const QPoint pos = PosOf(receiver, event);
    if (KindOf(type) == EventKind::Mouse || type == QEvent::ContextMenu)
        step.location.extraIndex = DescribeSpot(receiver, pos);
    step.extraInfo = ExtraInfoFor(receiver, event);
    step.hasExtraInfo = !step.extraInfo.isEmpty();
    const QVariant world = receiver->property("GUIRecWorldCoordinate");
    if (world.canConvert<QPointF>() && world.isValid()) {
        step.hasRealPos = true;
        step.realPos = world.toPointF();
    }
    Add(receiver, step, pos);
    m_lastEvent = event;
    m_lastType = type;
    m_lastStamp = StampOf(event);
    m_lastReceiver = receiver;
    return false;
}

// A key press that went to a shortcut never reaches a widget; its release shows it was typed.
void EventRecorder::AddPendingShortcut(QWidget* receiver, QKeyEvent* release) {
    if (!m_pendingShortcut || m_shortcutKey.key != release->key()) return;
    m_pendingShortcut = false;
    QWidget* target = m_shortcutReceiver ? m_shortcutReceiver.data() : receiver;
    Step step;
    step.event = m_shortcutKey;
    Add(target, step, target->rect().center());
}

void EventRecorder::Add(QWidget* receiver, Step step, QPoint pos) {
    QWidget* top = receiver->window();
    if (!m_mainWindow && !(top->windowFlags() & Qt::Popup)) {
        m_mainWindow = top;
        m_session.system.mainWindowSize = top->size();
    }
    const QString extraIndex = step.location.extraIndex;
    step.location = LocationOf(receiver, pos);
    step.location.topIsMain = top == m_mainWindow;
    step.location.extraIndex = extraIndex;
    for (const char* name : {"GUILocRowPath", "GUILOCROWPATH"}) {
        const QVariant path = receiver->property(name);
        if (path.isValid()) step.location.extraIndex = path.toString();
    }
    step.delay = int(m_sinceLast.restart());
    NoteCommand();
    m_session.steps.push_back(step);
}

// The handler that the steps since the last note ran, kept with the last of them, so that a
// play can tell whether the same command followed.
void EventRecorder::NoteCommand() {
    const std::string name = LastCommandName();
    if (name.empty() || m_session.steps.isEmpty()) return;
    ResetLastCommandName();
    Step& last = m_session.steps.last();
    if (!last.extraInfo.isEmpty()) last.extraInfo += QLatin1Char('\n');
    last.extraInfo += QStringLiteral("Command=") + QString::fromStdString(name);
    last.hasExtraInfo = true;
}

QString EventRecorder::ExtraInfoFor(QWidget* receiver, const QEvent* event) const {
    QStringList info;
    if (HasFlag(receiver, "GUIRecCausepopup")) info << QStringLiteral("Causepopup");
    const QVariant sub = receiver->property("GUIRecItemSubIndex");
    if (sub.isValid()) info << QStringLiteral("SubIndex=") + sub.toString();
    // The text an input held before the first key of a typing run, to tell a player whether
    // it starts from the same text.
    auto edit = qobject_cast<const QLineEdit*>(receiver);
    if (edit && event->type() == QEvent::KeyPress) {
        const bool continues = !m_session.steps.isEmpty() &&
                               KindOf(m_session.steps.last().event.type) == EventKind::Key;
        if (!continues) info << QStringLiteral("InitialText=") + edit->text();
    }
    return info.join(QLatin1Char('\n'));
}

RecordedEvent EventRecorder::Convert(QEvent* event) const {
    RecordedEvent r;
    r.type = event->type();
    if (auto m = dynamic_cast<QMouseEvent*>(event)) {
        r.pos = m->localPos();
        r.wndPos = m->windowPos();
        r.globalPos = m->screenPos();
        r.button = int(m->button());
        r.buttons = int(m->buttons());
        r.modifiers = int(m->modifiers());
        r.source = int(m->source());
        r.timestamp = m->timestamp();
    } else if (auto w = dynamic_cast<QWheelEvent*>(event)) {
        r.pos = w->position();
        r.globalPos = w->globalPosition();
        r.pixelDelta = w->pixelDelta();
        r.angleDelta = w->angleDelta();
        r.delta = w->angleDelta().y();
        r.orientation = int(qAbs(w->angleDelta().x()) > qAbs(w->angleDelta().y()) ? Qt::Horizontal
                                                                                  : Qt::Vertical);
        r.buttons = int(w->buttons());
        r.modifiers = int(w->modifiers());
        r.phase = int(w->phase());
        r.source = int(w->source());
    } else if (auto k = dynamic_cast<QKeyEvent*>(event)) {
        ConvertKey(k, r);
    } else if (auto c = dynamic_cast<QContextMenuEvent*>(event)) {
        r.pos = c->pos();
        r.globalPos = c->globalPos();
        r.reason = int(c->reason());
        r.modifiers = int(c->modifiers());
        r.timestamp = c->timestamp();
    } else if (auto im = dynamic_cast<QInputMethodEvent*>(event)) {
        for (const auto& a : im->attributes())
            r.attributes.push_back({int(a.type), a.start, a.length, a.value.toString()});
        r.preedit = im->preeditString();
        r.commit = im->commitString();
        r.replaceStart = im->replacementStart();
        r.replaceLength = im->replacementLength();
    }
    return r;
}

}  // namespace guireplay

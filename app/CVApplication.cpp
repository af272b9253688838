#include "app/CVApplication.h"

#include "foundation/Log.h"
#include "mainwindow/MainWindowController.h"

#include <QAction>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QStyleFactory>

#include <exception>

namespace {

/// The slot `action(QObject*)` or `action()` of an object; invalid when it has none.
QMetaMethod slotForAction(const QObject& object, const QByteArray& action)
{
    const auto* const meta = object.metaObject();
    for (const auto* const arguments : {"(QObject*)", "()"}) {
        const int index = meta->indexOfSlot(QByteArray(action + arguments).constData());
        if (index >= 0) {
            return meta->method(index);
        }
    }
    return {};
}

bool hasDesktopSettings()
{
    return qEnvironmentVariableIsSet("XDG_CURRENT_DESKTOP") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME");
}

/// The palette's colours are light, so everything beside them has to be.
QPalette lightPalette()
{
    QPalette palette(QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::Highlight, QColor(0x2B, 0x6C, 0xB0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

CVApplication::CVApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    setPalette(lightPalette());
    const auto fallbackFamily = QStringLiteral("Inter");
    if (!hasDesktopSettings() && QFontDatabase::hasFamily(fallbackFamily)) {
        setFont(QFont(fallbackFamily, font().pointSize()));
    }
}

QObject* CVApplication::targetForAction(const QByteArray& action, QObject* to,
                                        QObject* /*from*/) const
{
    auto* const controller = keyWindowController();
    if (controller && isUndoOrRedo(action)) {
        return controller;
    }
    if (to) {
        return to;
    }
    const auto canDo = [&action](const QObject* object) {
        return object && slotForAction(*object, action).isValid();
    };
    auto* const focused = focusWidget() ? focusWidget() : activeWindow();
    for (QObject* responder = focused; responder; responder = responder->parent()) {
        if (canDo(responder)) {
            return responder;
        }
    }
    if (canDo(controller)) {
        return controller;
    }
    if (canDo(this)) {
        return const_cast<CVApplication*>(this);
    }
    return canDo(m_delegate) ? m_delegate : nullptr;
}

bool CVApplication::sendAction(const QByteArray& action, QObject* to, QObject* from) const
{
    auto* const target = targetForAction(action, to, from);
    const auto method = target ? slotForAction(*target, action) : QMetaMethod();
    if (!method.isValid()) {
        return false;
    }
    return method.parameterCount() == 0
               ? method.invoke(target, Qt::DirectConnection)
               : method.invoke(target, Qt::DirectConnection, Q_ARG(QObject*, from));
}

void CVApplication::connectActions(QWidget& window)
{
    for (auto* const action : window.findChildren<QAction*>()) {
        if (!action->menu() && !action->isSeparator() && !action->objectName().isEmpty()) {
            connect(action, &QAction::triggered, this, [this, action] {
                sendAction(action->objectName().toLatin1(), nullptr, action);
            });
        }
    }
}

bool CVApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        if (isUndoOrRedoKey(*event)) {
            // Fields have an undo of their own for what is typed in them. Not offered to them, the
            // key reaches the window's action; left over from that, it is nobody's.
            event->setAccepted(event->type() == QEvent::KeyPress);
            return true;
        }
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        Log::line(QString(u"Unable to handle an event: " + QString::fromUtf8(exception.what())));
        return false;
    }
}

void CVApplication::terminate()
{
    quit();
}

MainWindowController* CVApplication::keyWindowController()
{
    const auto* const window = qobject_cast<CVMainWindow*>(activeWindow());
    return window ? dynamic_cast<MainWindowController*>(window->delegate()) : nullptr;
}

bool CVApplication::isUndoOrRedo(const QByteArray& action)
{
    return action == "undo" || action == "redo";
}

bool CVApplication::isUndoOrRedoKey(const QEvent& event)
{
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) &&
           !activeModalWidget() && !activePopupWidget() && keyWindowController();
}

#include "app/CVApplication.h"

#include "foundation/Log.h"
#include "mainwindow/MainWindowController.h"
#include "widgets/AccessibleRowList.h"
#include "widgets/PanelStyle.h"

#include <QAction>
#include <QFontDatabase>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QScopedValueRollback>

#include <algorithm>
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

/// The main window that an object belongs to; null when it belongs to none.
CVMainWindow* mainWindowOf(QObject* object)
{
    for (; object; object = object->parent()) {
        if (auto* const window = qobject_cast<CVMainWindow*>(object)) {
            return window;
        }
    }
    return nullptr;
}

/// Null when it is not the main window.
MainWindowController* controllerOf(const QWidget* widget)
{
    const auto* const window = qobject_cast<const CVMainWindow*>(widget);
    return window ? dynamic_cast<MainWindowController*>(window->delegate()) : nullptr;
}

/// The window's menu items that stand for a command.
QList<QAction*> itemsOf(const CVMainWindow& window)
{
    auto items = window.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    items.removeIf([](const QAction* item) {
        return UserInterfaceValidations::actionOfItem(*item).isEmpty();
    });
    return items;
}

bool hasDesktopSettings()
{
    return qEnvironmentVariableIsSet("XDG_CURRENT_DESKTOP") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME");
}

/// The window's own colours are light, so everything beside them has to be.
QPalette lightPalette(bool hasHighContrast)
{
    QPalette palette(QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::Highlight,
                     hasHighContrast ? QColor(0x0B, 0x3F, 0x7A) : QColor(0x2B, 0x6C, 0xB0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0xF9, 0xF9, 0xF9));
    palette.setColor(QPalette::ToolTipText, QColor(0x22, 0x21, 0x22));
    if (hasHighContrast) {
        palette.setColor(QPalette::PlaceholderText, QColor(0x44, 0x44, 0x44));
    }
    return palette;
}

/// The icon that the program carries inside itself. The desktop's theme is not asked, which would
/// take a tenth of the start: a desktop that has one finds the icon by the desktop file.
QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        icon.addFile(QStringLiteral(":/images/icons/%1x%1/org.corvane.Corvane.png").arg(size),
                     {size, size});
    }
    return icon;
}

} // namespace

CVApplication::CVApplication(int& argc, char** argv)
    : QApplication(argc, argv)
    , m_translation(Translation::preferredLanguage())
    , m_style(new PanelStyle)
{
    AccessibleRowList::installFactory();
    setStyle(m_style);
    setPalette(lightPalette(false));
    setWindowIcon(programIcon());
    const auto fallbackFamily = QStringLiteral("Inter");
    if (!hasDesktopSettings() && QFontDatabase::hasFamily(fallbackFamily)) {
        setFont(QFont(fallbackFamily, font().pointSize()));
    }
}

void CVApplication::setAppearance(bool reducesMotion, bool hasHighContrast)
{
    m_style->setAnimated(!reducesMotion);
    setPalette(lightPalette(hasHighContrast));
    m_style->setHighContrast(hasHighContrast);
}

QObject* CVApplication::targetForAction(const QByteArray& action, QObject* to, QObject* from) const
{
    auto* const window = activeWindow() ? activeWindow() : mainWindowOf(from);
    auto* const controller = controllerOf(window);
    if (controller && isUndoOrRedo(action)) {
        return controller;
    }
    if (to) {
        return to;
    }
    const auto canDo = [&action](const QObject* object) {
        return object && slotForAction(*object, action).isValid();
    };
    for (QObject* responder = focusWidget() ? focusWidget() : window; responder;
         responder = responder->parent()) {
        if (canDo(responder)) {
            return responder;
        }
    }
    if (canDo(controller)) {
        return controller;
    }
    // While another window of the program is in front, the main window's commands keep their sense.
    if (auto* const sendersController = controllerOf(mainWindowOf(from));
        canDo(sendersController)) {
        return sendersController;
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

void CVApplication::connectActions(CVMainWindow& window)
{
    for (auto* const item : itemsOf(window)) {
        connect(item, &QAction::triggered, this, [this, item] {
            sendAction(UserInterfaceValidations::actionOfItem(*item), nullptr, item);
        });
    }
    const auto validate = [this, &window] {
        validateActions(window);
    };
    for (const auto* const menu : window.menuBar()->findChildren<QMenu*>()) {
        connect(menu, &QMenu::aboutToShow, &window, validate);
    }
    connect(&window, &CVMainWindow::userInterfaceItemsDidChange, &window, validate);
    connect(this, &QApplication::focusChanged, &window, validate);
    validate();
}

bool CVApplication::performAction(CVMainWindow& window, const QByteArray& action)
{
    validateActions(window);
    const auto items = itemsOf(window);
    const auto item = std::find_if(items.begin(), items.end(), [&action](const QAction* candidate) {
        return UserInterfaceValidations::actionOfItem(*candidate) == action;
    });
    if (item == items.end() || !(*item)->isEnabled()) {
        return false;
    }
    (*item)->trigger();
    return true;
}

void CVApplication::validateActions(const CVMainWindow& window) const
{
    for (auto* const item : itemsOf(window)) {
        auto* const target =
            targetForAction(UserInterfaceValidations::actionOfItem(*item), nullptr, item);
        auto* const validations = dynamic_cast<UserInterfaceValidations*>(target);
        item->setEnabled(target && (!validations || validations->validateUserInterfaceItem(*item)));
    }
}

bool CVApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        if (event->type() == QEvent::ShortcutOverride) {
            // What a key may do is decided by what makes sense when it is pressed.
            if (const auto* const window = qobject_cast<CVMainWindow*>(activeWindow())) {
                validateActions(*window);
            }
        }
        if (isWindowsUndoOrRedoKey(*event)) {
            // A field would take the key even with nothing to take back. Not offered to it, the key
            // reaches the window's action; left over from that, it is nobody's.
            event->setAccepted(event->type() == QEvent::KeyPress);
            return true;
        }
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        Log::line(QString(u"Unable to handle an event: " + QString::fromUtf8(exception.what())));
        return false;
    }
}

bool CVApplication::event(QEvent* event)
{
    // One from outside: the session manager's last word. Taken as a Quit of the person, it could
    // make the closing window ask what to do when saving fails.
    if (event->type() == QEvent::Quit && event->spontaneous() && !m_isTerminating) {
        Q_EMIT sessionEnded();
        return true;
    }
    return QApplication::event(event);
}

void CVApplication::terminate()
{
    // Qt sends the program's own wish to quit around by the platform, as if it came from outside.
    const QScopedValueRollback terminating(m_isTerminating, true);
    quit();
}

bool CVApplication::isUndoOrRedo(const QByteArray& action)
{
    return action == "undo" || action == "redo";
}

bool CVApplication::isWindowsUndoOrRedoKey(const QEvent& event)
{
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool isUndo = key.matches(QKeySequence::Undo);
    if (!isUndo && !key.matches(QKeySequence::Redo)) {
        return false;
    }
    // A field that is read-only has neither. One with typing to take back keeps both keys: who goes
    // one too far in it means the field.
    const auto* const field = qobject_cast<const QLineEdit*>(focusWidget());
    const bool isFields =
        field && (field->isUndoAvailable() || (!isUndo && field->isRedoAvailable()));
    return !isFields && !activeModalWidget() && !activePopupWidget() &&
           controllerOf(activeWindow());
}

#include "mainwindow/DeleteKeyGuard.h"

#include <QCoreApplication>
#include <QKeyEvent>

void DeleteKeyGuard::arm()
{
    m_isArmed = true;
    QCoreApplication::instance()->installEventFilter(this);
}

void DeleteKeyGuard::disarm()
{
    m_isArmed = false;
    QCoreApplication::instance()->removeEventFilter(this);
}

bool DeleteKeyGuard::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<const QKeyEvent&>(*event).key() != Qt::Key_Delete) {
            disarm();
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
        disarm();
        break;
    default:
        break;
    }
    return false;
}

#include "app/Snapshot.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>

bool Snapshot::draw(QWidget& window, const QString& path)
{
    // Layouts and notifications settle by posting events to themselves: each round delivers what
    // the one before posted.
    for (int round = 0; round < 10; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    return window.grab().save(path, "PNG");
}

#include "app/Snapshot.h"

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QWidget>

bool Snapshot::draw(QWidget& window, const QString& path)
{
    // Layouts and notifications settle by posting events to themselves: each round delivers what
    // the one before posted. What still changes after so many never settles.
    constexpr int maximumRounds = 50;
    constexpr int roundsOfRest = 3;
    QImage picture;
    int rest = 0;
    for (int round = 0; round < maximumRounds && rest < roundsOfRest; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const auto latest = window.grab().toImage();
        rest = latest == picture ? rest + 1 : 0;
        picture = latest;
    }
    return picture.save(path, "PNG");
}

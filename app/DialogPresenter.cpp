#include "app/DialogPresenter.h"

#include "store/NSError.h"
#include "widgets/FormButton.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>

namespace {

/// A message box that can always be left, also without an answer. Qt's own lets a button stand for
/// that, or does not let go.
class AlertBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void closeEvent(QCloseEvent* /*event*/) override { reject(); }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel)) {
            reject();
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }
};

QString okTitle()
{
    return QApplication::translate("DialogPresenter", "OK");
}

} // namespace

void DialogPresenter::presentError(const NSError& error)
{
    runModalAlert({error.localizedDescription(), error.localizedFailureReason(), {okTitle()}});
}

bool DialogPresenter::presentError(const NSError& error, const Recovery& recovery)
{
    for (auto latest = error;;) {
        const int pressed = runModalAlert({latest.localizedDescription(),
                                           latest.localizedFailureReason(),
                                           {recovery.title, okTitle()}});
        if (pressed != firstButton) {
            return false;
        }
        try {
            recovery.attempt();
            return true;
        } catch (const NSError& next) {
            latest = next;
        }
    }
}

int DialogPresenter::runModalAlert(const Alert& alert)
{
    if (m_wasBrokenOff) {
        return 0;
    }
    auto* const box = new AlertBox(QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(QApplication::applicationDisplayName());
    box->setText(alert.message);
    box->setInformativeText(alert.informativeText);
    box->setTextFormat(Qt::PlainText);
    int pressed = 0;
    for (int i = 0; i < alert.buttonTitles.size(); ++i) {
        auto* const button = new FormButton(box);
        button->setText(alert.buttonTitles[i]);
        box->addButton(button, i == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        QObject::connect(button, &QPushButton::clicked, box,
                         [&pressed, i] { pressed = firstButton + i; });
        if (i == 0) {
            box->setDefaultButton(button);
        }
    }
    bool isFinished = false;
    QObject::connect(box, &QDialog::finished, box, [&isFinished] { isFinished = true; });
    box->exec();
    m_wasBrokenOff = !isFinished;
    return pressed;
}

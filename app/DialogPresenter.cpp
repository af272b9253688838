#include "app/DialogPresenter.h"

#include "store/NSError.h"
#include "widgets/FormButton.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox* activeBox(const QString& text, const QString& informativeText)
{
    auto* const box = new QMessageBox(QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(QApplication::applicationDisplayName());
    box->setText(text);
    box->setInformativeText(informativeText);
    box->setTextFormat(Qt::PlainText);
    return box;
}

QPushButton* addButton(QMessageBox& box, const QString& title, QMessageBox::ButtonRole role)
{
    auto* const button = new FormButton(&box);
    button->setText(title);
    box.addButton(button, role);
    return button;
}

} // namespace

bool DialogPresenter::presentError(const NSError& error)
{
    auto* const box = activeBox(error.localizedDescription(), error.localizedFailureReason());
    addButton(*box, QApplication::translate("DialogPresenter", "OK"), QMessageBox::AcceptRole);
    box->exec();
    return false;
}

int DialogPresenter::runModalAlert(const Alert& alert)
{
    auto* const box = activeBox(alert.message, alert.informativeText);
    int pressed = firstButton + static_cast<int>(alert.buttonTitles.size()) - 1;
    for (qsizetype i = 0; i < alert.buttonTitles.size(); ++i) {
        const bool isLast = i + 1 == alert.buttonTitles.size();
        auto* const button = addButton(*box, alert.buttonTitles[i],
                                       isLast ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
        QObject::connect(button, &QPushButton::clicked, box,
                         [&pressed, i] { pressed = firstButton + static_cast<int>(i); });
        if (i == 0) {
            box->setDefaultButton(button);
        }
        if (isLast) {
            box->setEscapeButton(button);
        }
    }
    box->exec();
    return pressed;
}

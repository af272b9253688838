#include "app/UpdateWindow.h"

#include "widgets/AccessibleAnnouncements.h"

#include "ui_UpdateWindow.h"

#include <QAccessible>

UpdateWindow::UpdateWindow(const QDBusConnection& bus, QWidget* parent)
    : QDialog(parent)
    , m_check(bus)
    , m_ui(std::make_unique<Ui::UpdateWindow>())
{
    m_ui->setupUi(this);
    // As high as the text needs, at the width of the form.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    QFont messageFont = font();
    messageFont.setWeight(QFont::DemiBold);
    m_ui->messageLabel->setFont(messageFont);
    connect(m_ui->closeButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::finished, &m_check, &UpdateCheck::cancel);
    connect(&m_check, &UpdateCheck::answered, this, &UpdateWindow::showAnswer);
}

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::check()
{
    if (!m_check.isUnderWay()) {
        setText(tr("Looking for a newer version…"), {});
        m_ui->progressBar->show();
        m_ui->closeButton->setText(tr("Cancel"));
        m_check.start();
    }
    show();
    raise();
    activateWindow();
}

void UpdateWindow::showAnswer(const UpdateCheck::Answer& answer)
{
    m_ui->progressBar->hide();
    m_ui->closeButton->setText(tr("Close"));
    switch (answer.result) {
    case UpdateCheck::Result::NewerVersion:
        setText(tr("A newer version of Corvane is available"),
                tr("Version %1 is installed. Version %2 comes with the next update of your system.")
                    .arg(answer.installedVersion, answer.newerVersion));
        break;
    case UpdateCheck::Result::UpToDate:
        setText(
            tr("Corvane is up to date"),
            tr("Version %1 is the newest that your system knows of.").arg(answer.installedVersion));
        break;
    case UpdateCheck::Result::Unknown:
        setText(tr("Unable to look for a newer version"), answer.reason);
        break;
    }
}

void UpdateWindow::setText(const QString& message, const QString& information)
{
    m_ui->messageLabel->setText(message);
    m_ui->informationLabel->setText(information);
    m_ui->informationLabel->setVisible(!information.isEmpty());
    // Nobody has the focus on a label: it is told of its own accord.
    setAccessibleDescription(information.isEmpty() ? message
                                                   : tr("%1. %2").arg(message, information));
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    AccessibleAnnouncements::make(event);
}

#pragma once

#include "app/UpdateCheck.h"

#include <QDialog>

#include <memory>

namespace Ui {
class UpdateWindow;
}

/// The small window that tells whether there is a newer version. It leaves the main window usable.
class UpdateWindow : public QDialog
{
    Q_OBJECT

public:
    UpdateWindow(const QDBusConnection& bus, QWidget* parent);
    ~UpdateWindow() override;

    /// Shows the window and asks, unless an answer is awaited already. Closing the window takes the
    /// question back.
    void check();

private:
    void showAnswer(const UpdateCheck::Answer& answer);
    void setText(const QString& message, const QString& information);

    UpdateCheck m_check;
    std::unique_ptr<Ui::UpdateWindow> m_ui;
};

#pragma once

#include "app/FolderOpener.h"

#include <QDialog>

#include <memory>

namespace Ui {
class AboutBox;
}

/// Says which program this is, what it is made of, and where the person's data lie.
class AboutBox : public QDialog
{
    Q_OBJECT

public:
    AboutBox(const QString& storePath, QWidget* parent);
    ~AboutBox() override;

private:
    FolderOpener m_folderOpener;
    std::unique_ptr<Ui::AboutBox> m_ui;
};

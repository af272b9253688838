#pragma once

#include <QObject>
#include <QString>

/// Shows a file to the person in the folder that it lies in.
class FolderOpener : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks the desktop's file browser to show the file, or, where none can be asked, whatever
    /// opens folders. A file that is not there leaves its folder to be shown.
    void showFile(const QString& path);

Q_SIGNALS:
    /// Nothing here opens folders.
    void failed();

private:
    void openFolder(const QString& path);
};

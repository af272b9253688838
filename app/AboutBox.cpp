#include "app/AboutBox.h"

#include "foundation/RegionalSettings.h"
#include "store/SQLiteStore.h"

#include "ui_AboutBox.h"

#include <QGuiApplication>
#include <QIcon>
#include <QStyle>

namespace {

// In points.
constexpr int iconSize = 64;
constexpr int nameSize = 24;

} // namespace

AboutBox::AboutBox(const QString& storePath, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::AboutBox>())
{
    m_ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    QFont nameFont = font();
    nameFont.setPixelSize(nameSize);
    nameFont.setWeight(QFont::DemiBold);
    m_ui->nameLabel->setFont(nameFont);
    const auto icon = QIcon::fromTheme(QGuiApplication::desktopFileName(), windowIcon());
    m_ui->iconLabel->setPixmap(icon.pixmap(iconSize, iconSize));
    m_ui->iconLabel->setVisible(!icon.isNull());
    m_ui->versionLabel->setText(tr("Version %1").arg(QCoreApplication::applicationVersion()));
    m_ui->librariesLabel->setText(QStringLiteral("Qt %1 · ICU %2 · SQLite %3")
                                      .arg(QString::fromLatin1(qVersion()),
                                           RegionalSettings::libraryVersion(),
                                           SQLiteStore::libraryVersion()));
    // A label would begin where its own text does: names in Latin letters at the far side of a
    // mirrored window.
    const auto alignment =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    for (auto* const label : {m_ui->nameLabel, m_ui->licenceLabel, m_ui->librariesLabel}) {
        label->setAlignment(alignment | Qt::AlignAbsolute);
    }
    m_ui->storeField->setText(storePath);
    m_ui->storeField->setCursorPosition(0);
    m_ui->problemLabel->hide();
    connect(m_ui->openFolderButton, &QPushButton::clicked, &m_folderOpener, [this, storePath] {
        m_ui->problemLabel->hide();
        m_folderOpener.showFile(storePath);
    });
    connect(&m_folderOpener, &FolderOpener::failed, m_ui->problemLabel, &QWidget::show);
    connect(m_ui->closeButton, &QPushButton::clicked, this, &QDialog::reject);
}

AboutBox::~AboutBox() = default;

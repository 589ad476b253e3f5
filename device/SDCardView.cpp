#include "SDCardView.h"

#include "CardDrives.h"
#include "RecordingName.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"
#include "UiDescription.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableWidget>

SDCardView::SDCardView(QWidget* parent)
    : TavDialog("SDCardView", parent), m_form(form()), m_table(new QTableWidget(m_form)) {
    logInfo("[SDCardView]: Enter SDCardView class.");
    m_form->addChild(new QLabel(m_form), "context", TavWidget::Style::Label);
    m_form->addChild(m_table, "listsdCard", TavWidget::Style::Panel);
    auto* refresh = new QPushButton(m_form);
    auto* open = new QPushButton(m_form);
    auto* cancel = new QPushButton(m_form);
    m_form->addChild(refresh, "bRefresh", TavWidget::Style::Button);
    m_form->addChild(open, "bOpen", TavWidget::Style::Button);
    m_form->addChild(cancel, "bCancel", TavWidget::Style::Button);
    open->setDefault(true);

    m_table->setColumnCount(ColumnCount);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->setShowGrid(false);
    // A mount point can be long: the drive column takes the room the sizes leave, and cuts
    // the middle of what does not fit; its tool tip has it whole.
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(DriveColumn, QHeaderView::Stretch);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->horizontalHeader()->setHighlightSections(false);
    UiDescription ui;
    ui.open("SDCardView");
    const UiItem look = ui.item("listsdCard");
    m_table->setStyleSheet(
        m_table->styleSheet() +
        QStringLiteral(" QTableWidget{color: %1; border: 1px solid #3a4150;}"
                       " QTableWidget::item{padding: 0 6px;}"
                       " QTableWidget::item:selected{background: #2f7cf6; color: #ffffff;}"
                       " QHeaderView::section{background: #262b35; color: #c9ced8; border: none;"
                       " padding: 4px;}")
            .arg(look.textColor[UiItem::Default]));

    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(refresh, &QPushButton::clicked, this, &SDCardView::loadMemory);
    connect(open, &QPushButton::clicked, this, &SDCardView::onClicked_bOpenFolder);
    connect(m_table, &QTableWidget::itemClicked, this, &SDCardView::onClicked_Item);
    connect(m_table, &QTableWidget::itemDoubleClicked, this, &SDCardView::onClicked_bOpenFolder);
    retranslateUi();
    loadMemory();
}

void SDCardView::retranslateUi() {
    m_form->retranslate();
    // The dialog has no frame of its own; the title still names its window for the desktop.
    setWindowTitle(title()->text());
    m_table->setHorizontalHeaderLabels(
        {tr("Drive"), tr("Name"), tr("Total"), tr("Used"), tr("Free")});
}

bool SDCardView::isValidMemory(const QString& drive) const {
    logDebug("SDCardView::isValidMemory");
    const bool valid = QFile::exists(ConfigAccess::configPath(drive));
    if (valid)
        logInfo("[SDCardView] find valid sdcard!");
    return valid;
}

void SDCardView::loadMemory() {
    logInfo("[SDCardView]: Try to load memory...");
    m_table->clearContents();
    m_table->setRowCount(0);
    m_drive.clear();
    for (const CardDrives::Drive& drive : CardDrives::list()) {
        if (!isValidMemory(drive.root))
            continue;
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        const QString texts[ColumnCount] = {
            drive.root, drive.name, CardDrives::sizeText(drive.totalBytes),
            CardDrives::sizeText(drive.totalBytes - drive.freeBytes),
            CardDrives::sizeText(drive.freeBytes)};
        for (int column = 0; column < ColumnCount; ++column)
            m_table->setItem(row, column, new QTableWidgetItem(texts[column]));
        m_table->item(row, DriveColumn)->setToolTip(QDir::toNativeSeparators(drive.root));
    }
    logLine("Complete!");
}

void SDCardView::onClicked_Item() {
    logInfo("[SDCardView]: SDCard Item is clicked.");
    const QTableWidgetItem* drive = m_table->item(m_table->currentRow(), DriveColumn);
    m_drive = drive != nullptr ? drive->text() : QString();
}

void SDCardView::releaseOpen() {
    m_once = false;
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
}

QStringList SDCardView::cardRecordings(const QString& root, const QString& model) {
    const QRegularExpression avi(QString::fromLatin1(RecordingName::kSingleChannelAvi));
    const bool frontFilesOnly = model.contains(QLatin1String("RAVEN1")) ||
                                model.contains(QLatin1String("RAVEN2")) ||
                                model.contains(QLatin1String("HERON07"));
    const QRegularExpression mp4(QString::fromLatin1(
        frontFilesOnly ? RecordingName::kFrontOnlyMp4 : RecordingName::kSingleChannelMp4));
    QStringList files;
    const QDir card(root + '/');
    // Folders only: the card's own files, "." and ".." hold no recordings of the camera.
    for (const QString& entry : card.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (entry == QLatin1String("CONFIG"))
            continue;
        const QDir folder(root + '/' + entry);
        for (const QString& name : folder.entryList({"*.mp4", "*.avi"}, QDir::Files)) {
            const bool kept =
                name.endsWith(QLatin1String(".avi"))
                    ? avi.match(name).hasMatch()
                    : name.endsWith(QLatin1String(".mp4")) && mp4.match(name).hasMatch();
            if (kept)
                files << folder.path() + '/' + name;
        }
    }
    return files;
}

void SDCardView::onClicked_bOpenFolder() {
    logInfo("[SDCardView]: Open Folder is clicked.");
    if (m_once)
        return;
    m_once = true;
    setAttribute(Qt::WA_TransparentForMouseEvents, true);
    emit onSendStopSDCheck();
    if (ConfigAccess::cardThreadRunning)
        emit onSendStopThread();

    if (m_drive.isEmpty()) {
        logError("[SDCardView]: No SDCard!");
        TavPrompt::inform(this, m_table->rowCount() > 0 ? tr("SD Card is not selected!")
                                                        : tr("SD Card is not connected!"));
        releaseOpen();
        return;
    }
    if (QDir(m_drive + '/').entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty()) {
        logError("[SDCardView]: No Item!");
        TavPrompt::inform(this, tr("SD Card is Empty!"));
        releaseOpen();
        return;
    }
    const qint32 result = m_config.readConfig(QDir(m_drive));
    if (result != ConfigAccess::ReadOk) {
        switch (result) {
        case ConfigAccess::ReadFailed:
            logError("[SDCardView]: Error is Occured!");
            break;
        case ConfigAccess::ModelUnknown:
            logError("[SDCardView]: This model is not supported!");
            break;
        case ConfigAccess::ChecksumWrong:
            logError("[SDCardView]: Config checksum is diffrent.");
            break;
        default:
            logError("[SDCardView]: Config File is not exist");
            break;
        }
        TavPrompt::inform(this, ConfigAccess::readResultText(result));
        releaseOpen();
        return;
    }
    ConfigAccess::cardRoot = m_drive;
    CardDrives::setValidatedRoot(m_drive);
    emit onSendSDCardFile(cardRecordings(m_drive, ConfigAccess::modelText));
    accept();
}

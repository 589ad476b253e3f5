#include "CardSession.h"

#include "CardDrives.h"
#include "CheckSDThread.h"
#include "ConfigAccess.h"
#include "SDCardView.h"
#include "SettingView.h"
#include "StatusLog.h"
#include "TavPrompt.h"

CardSession::CardSession(QObject* parent) : QObject(parent) {}

CardSession::~CardSession() {
    stopWatch();
}

void CardSession::openCardDialog(QWidget* parent) {
    SDCardView dialog(parent);
    connect(&dialog, &SDCardView::onSendStopSDCheck, this, &CardSession::stopWatch);
    connect(&dialog, &SDCardView::onSendStopThread, this, &CardSession::stopWatch);
    connect(&dialog, &SDCardView::onSendSDCardFile, this, &CardSession::onCardFiles);
    if (parent != nullptr)
        dialog.move(parent->window()->geometry().center() - dialog.rect().center());
    dialog.exec();
}

void CardSession::openSettingDialog(QWidget* parent) {
    SettingView dialog(parent);
    connect(&dialog, &SettingView::onSendNotSaveSetting, this, &CardSession::onSendNotSaveSetting);
    connect(&dialog, &SettingView::onSendFormatStarting, this, &CardSession::onFormatStarting);
    connect(&dialog, &SettingView::onSendFormatFinished, this, &CardSession::onFormatFinished);
    connect(&dialog, &SettingView::onSendChangeLanguage, this, &CardSession::onSendChangeLanguage);
    connect(&dialog, &SettingView::onSendSpeedUnit, this, &CardSession::onSendSpeedUnit);
    connect(&dialog, &SettingView::onSendDriveRules, this, &CardSession::onSendDriveRules);
    connect(&dialog, &SettingView::onSendShowUpdate, this, &CardSession::onSendShowUpdate);
    dialog.exec();
}

void CardSession::onCardFiles(const QStringList& files) {
    emit onSendSDCardFile(files);
    startWatch(ConfigAccess::cardRoot);
}

void CardSession::startWatch(const QString& root) {
    stopWatch();
    m_watchedRoot = root;
    m_watch = new CheckSDThread(root, this);
    // Queued: the watch reports from its own thread.
    connect(m_watch, &CheckSDThread::onSendSDNotExist, this, &CardSession::onCardGone,
            Qt::QueuedConnection);
    ConfigAccess::cardThreadRunning = true;
    m_watch->start();
}

void CardSession::stopWatch() {
    if (m_watch == nullptr)
        return;
    m_watch->breakThread();
    delete m_watch; // waits for the thread to end
    m_watch = nullptr;
    ConfigAccess::cardThreadRunning = false;
}

void CardSession::onCardGone() {
    logInfo("[CardSession]: the card at %s is gone", m_watchedRoot.toLocal8Bit().constData());
    const QString root = m_watchedRoot;
    stopWatch();
    // A card put in again, or another at the same place, is opened through the dialog anew.
    if (CardDrives::validatedRoot() == root)
        CardDrives::clearValidatedRoot();
    if (ConfigAccess::cardRoot == root)
        ConfigAccess::cardRoot.clear();
    emit onSendCardContentsGone(root);
    TavPrompt::inform(nullptr, tr("The memory card was removed."));
}

void CardSession::onFormatStarting() {
    // The format takes the card off-line for a moment; that is not the card going away.
    const QString root = ConfigAccess::cardRoot;
    stopWatch();
    emit onSendCardContentsGone(root);
}

void CardSession::onFormatFinished() {
    if (!ConfigAccess::cardRoot.isEmpty())
        startWatch(ConfigAccess::cardRoot);
}

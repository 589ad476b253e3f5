#include "CheckSDThread.h"

#include "CardDrives.h"
#include "StatusLog.h"

#include <QDir>

#include <memory>

CheckSDThread::CheckSDThread(const QString& root, QObject* parent)
    : QThread(parent), m_root(root) {}

CheckSDThread::~CheckSDThread() {
    breakThread();
    wait();
    logInfo("[CheckSDThread] quit");
}

void CheckSDThread::breakThread() {
    logInfo("[CheckSDThread] breakThread");
    m_running = false;
}

bool CheckSDThread::cardPresent(const QDir& root) const {
    if (!root.exists())
        return false;
    // A card pulled out can leave its empty mount point behind; what counts is that the
    // drive is still mounted.
    for (const CardDrives::Drive& drive : CardDrives::list()) {
        if (QDir(drive.root + '/') == root)
            return true;
    }
    return false;
}

void CheckSDThread::run() {
    m_alive = true;
    // "E:" alone would name the current folder of drive E.
    const auto root = std::make_unique<QDir>(m_root + '/');
    m_running = true;
    while (m_running) {
        if (!cardPresent(*root)) {
            logInfo("[CheckSDThread] emit onSendSDNotExist");
            emit onSendSDNotExist();
            m_alive = false;
            m_running = false;
            break;
        }
        logDebug("[CheckSDThread] sd exist");
        // Slept in short steps so that breakThread() ends the watch at once.
        for (int slept = 0; slept < kPollMs && m_running; slept += 50)
            msleep(50);
    }
    exit(0);
}

#pragma once

#include "CardFormat.h"

#include <QProcess>
#include <QString>
#include <QThread>

#include <atomic>
#include <vector>

// Formats the opened memory card without losing the camera's configuration: saves the
// card's CONFIG folder into the data folder, formats the card as FAT32 with mkdosfs, puts
// the saved files back and reports by threadFinished(). Every step that fails reports its
// own code and the run goes on, so one run may report several codes; it always ends with 0.
//
// Beyond what a plain format does, nothing is risked that cannot be undone: the card is not
// formatted when its configuration could not be saved, nothing is written or removed
// outside the card root the card dialog opened, and the saved configuration leaves the data
// folder only once it is verified back on the card (otherwise it is kept under a name of its
// own, keptFolder()).
class FileFormatThread : public QThread {
    Q_OBJECT
public:
    enum Code {
        Finished = 0,
        SaveFailed = -2,     // CONFIG could not be saved, or the saved copy not removed
        ClearFailed = -4,    // the card could not be emptied after a failed format
        RestoreFailed = -5,  // CONFIG could not be put back on the card
        NotFormatted = -6,   // the card was left as it was
        FormatterFailed = -7 // mkdosfs ran and failed; the card was emptied
    };

    // Volume labels of FAT hold 11 characters; mkdosfs refuses longer ones.
    static constexpr int kLabelLength = 11;

    explicit FileFormatThread(QObject* parent = nullptr);
    ~FileFormatThread() override;

    // 1: save and restore every file of CONFIG; 2: only config.bin.
    void setMode(int mode) { m_mode = mode; }
    int mode() const { return m_mode; }

    // Where the saved configuration was kept when it could not be verified back on the card;
    // empty when it was verified and removed.
    QString keptFolder() const { return m_keptFolder; }

    // The mkdosfs arguments: FAT32, the label, 64 sectors a cluster, the target.
    static QStringList formatterArguments(const QString& label, const QString& target);

    // Set while a run is busy; cleared by stopThread() and at the end of a run.
    static std::atomic<bool> busy;

signals:
    // Sent just before threadFinished() with a failure code that has a detail().
    void threadDetail(const QString& detail);
    void threadFinished(int code);

public slots:
    void finishmkdos(int exitCode, QProcess::ExitStatus status);
    void stopThread();

protected:
    void run() override;

private:
    enum Outcome { Formatted, NotStarted, Failed };
    // Reports a failing step; the run goes on.
    void fail(int code, const QString& detail = QString());
    Outcome formatCard(const QString& label, QString* detail);
    // Runs the commands in order; false at the first that fails, with its output.
    bool runTools(const std::vector<platform::ExternalCommand>& commands, QString* output);
    // The card may come back at another mount point (its label changed with the format).
    void followRemount(const QString& device);
    QString keepSavedConfig(const QString& saved);

    QProcess* m_process = nullptr;
    int m_mode = 0;
    QString m_root;
    QString m_keptFolder;
};

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

// Every modal message, question and file dialog of the program goes through here, so that
// they all wear the program's dark look (one style sheet, built from the description
// "TavPrompt") and so that a test can answer them instead of a user.
class TavPrompt {
public:
    // A message box with the text alone and an OK button.
    static void inform(QWidget* parent, const QString& text);
    // A question titled "Warning" with Yes and No buttons; true only for Yes.
    static bool ask(QWidget* parent, const QString& text);
    // The same under a title of its own.
    static bool ask(QWidget* parent, const QString& title, const QString& text);
    // Several existing files; empty when cancelled.
    static QStringList openFiles(QWidget* parent, const QString& caption, const QString& folder,
                                 const QString& filter);
    // One folder, the chooser opening at start (the folder chosen before) when it exists;
    // empty when cancelled.
    static QString openFolder(QWidget* parent, const QString& caption,
                              const QString& start = QString());
    // A file to write, starting at `path`; the system asks before replacing one. Empty when
    // cancelled.
    static QString saveFile(QWidget* parent, const QString& caption, const QString& path,
                            const QString& filter);

    // The style sheet of the program's message boxes and dialogs, read from the description
    // anew each time (empty when the description is missing: Qt's own look then).
    static QString styleSheet();

    // Set by tests. Each hook, when set, replaces the corresponding dialog.
    static std::function<void(const QString& text)> informHook;
    static std::function<bool(const QString& text)> askHook;
    // Answers questions with their titles; askHook answers when this one is not set.
    static std::function<bool(const QString& title, const QString& text)> askTitledHook;
    static std::function<QStringList()> openFilesHook;
    // Given the folder the chooser would open at.
    static std::function<QString(const QString& start)> openFolderHook;
    static std::function<QString(const QString& path)> saveFileHook;
};

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

// Every modal question and dialog of the recording views goes through here, so that a test
// can answer them instead of a user. With no hook set the user sees the ordinary Qt boxes
// and file dialogs.
class ListPrompt {
public:
    // A message box with the text alone and an OK button.
    static void inform(QWidget* parent, const QString& text);
    // A question titled "Warning" with Yes and No buttons; true only for Yes.
    static bool ask(QWidget* parent, const QString& text);
    // Several existing files; empty when cancelled.
    static QStringList openFiles(QWidget* parent, const QString& caption, const QString& folder,
                                 const QString& filter);
    // One folder; empty when cancelled.
    static QString openFolder(QWidget* parent, const QString& caption);

    // Set by tests. Each hook, when set, replaces the corresponding dialog.
    static std::function<void(const QString& text)> informHook;
    static std::function<bool(const QString& text)> askHook;
    static std::function<QStringList()> openFilesHook;
    static std::function<QString()> openFolderHook;
};

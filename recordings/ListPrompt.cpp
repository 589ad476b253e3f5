#include "ListPrompt.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>

std::function<void(const QString&)> ListPrompt::informHook;
std::function<bool(const QString&)> ListPrompt::askHook;
std::function<QStringList()> ListPrompt::openFilesHook;
std::function<QString()> ListPrompt::openFolderHook;

void ListPrompt::inform(QWidget* parent, const QString& text) {
    if (informHook) {
        informHook(text);
        return;
    }
    QMessageBox box(QMessageBox::NoIcon, QString(), text, QMessageBox::Ok, parent);
    box.exec();
}

bool ListPrompt::ask(QWidget* parent, const QString& text) {
    if (askHook)
        return askHook(text);
    const QString title = QCoreApplication::translate("ListPrompt", "Warning");
    return QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

QStringList ListPrompt::openFiles(QWidget* parent, const QString& caption, const QString& folder,
                                  const QString& filter) {
    if (openFilesHook)
        return openFilesHook();
    return QFileDialog::getOpenFileNames(parent, caption, folder, filter);
}

QString ListPrompt::openFolder(QWidget* parent, const QString& caption) {
    if (openFolderHook)
        return openFolderHook();
    return QFileDialog::getExistingDirectory(parent, caption, QString(), QFileDialog::ShowDirsOnly);
}

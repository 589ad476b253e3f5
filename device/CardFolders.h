#pragma once

#include <QString>

// The folder work of a card format: saving the card's CONFIG folder, putting it back, and
// emptying the card when its format failed.
class CardFolders {
public:
    enum CopyMode {
        AllFiles = 1,      // every file of the folder
        ConfigFileOnly = 2 // config.bin alone
    };

    // Copies the source's files (not its sub-folders) into destination, which is created
    // when missing and emptied of files first. False, with a log line, at the first failure.
    static bool copyFolder(const QString& source, const QString& destination, int mode);

    // Whether every file the mode takes from source is in destination with the same bytes.
    static bool holdsCopy(const QString& source, const QString& destination, int mode);

    // Removes folder and everything in it, keeping within it: a link is removed as a link
    // and never followed. False only when the folder does not exist; single entries that
    // cannot be removed are passed over.
    static bool removeFolder(const QString& folder);

    // Removes everything inside root and keeps root itself (a mount point stays).
    static bool removeContents(const QString& root);
};

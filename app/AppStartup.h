#pragma once

#include <QString>

class QRect;

#include <functional>

// The program's start-up sequence, its event loop and its end. main() only calls run().
class AppStartup {
public:
    static int run(int& argc, char** argv);

    // Reads "language", "id" and "version"; a stored version other than the program's own
    // is replaced at once, in memory and in the settings store.
    static void readStoredValues();

    // The player's values the window starts with: volume, mute, the save folders, the speed
    // unit.
    static void readPlayerValues();
    // At the end: the window's place and size and the values the user changed.
    static void saveValues(const QRect& frame);
    // Working files (thumbnails, snapshots, the card's copy) the program leaves in its data
    // folder.
    static void removeDataFolderLeftovers();

    // The status log goes with the program's end.
    static void removeStatusLog();

    // Sets the folders and the log level, creating the data folder when missing.
    static void initialiseFolders();

    // Whether a stored "agreement" value lets the program run; sets the update-check and
    // crash-report flags from it. Empty and unknown values do not.
    static bool acceptAgreementValue(const QString& value);
    // Whether the user agreed: the stored value, or (none stored yet) the agreement dialog,
    // whose end is also handed to the window's slot.
    template <typename Window>
    static bool agreementAccepted(Window* window, void (Window::*finished)(int)) {
        return agreementAccepted([window, finished](int result) { (window->*finished)(result); });
    }
    static bool agreementAccepted(const std::function<void(int)>& finished);
};

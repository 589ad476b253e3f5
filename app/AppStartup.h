#pragma once

// The program's start-up sequence, its event loop and its end. main() only calls run().
class AppStartup {
public:
    static int run(int& argc, char** argv);

    // Reads "language", "id" and "version"; a stored version other than the program's own
    // is replaced at once, in memory and in the settings store.
    static void readStoredValues();

    // Sets the folders and the log level, creating the data folder when missing.
    static void initialiseFolders();
};

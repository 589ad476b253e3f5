#pragma once

#include "ForeignName.h"

#include <QString>

#include <vector>

// The file names of other dash and action cameras, one table entry per layout. Every entry
// is a regular expression over the file name with named parts (year, month, day, hour,
// minute, second, seq, type, typeAfter, channel) and the type of a recording whose name and
// folder say none; one code path reads them all. Names in the camera's own layout
// (date_time_TYP_C) are never read here: the camera's grammar alone decides about them,
// also when it refuses them.
class NameSchemes {
public:
    struct Scheme {
        const char* name;    // what layout this is, for the documentation and tests
        const char* pattern; // matched case-insensitively against the whole file name
        int defaultType;     // when neither the name nor its folder gives a type
    };

    static const std::vector<Scheme>& table();

    // Whether a file name has the shape of the camera's own names (eight digits, "_", six
    // digits, "_", three letters, a channel digit), whether or not the grammar admits it.
    static bool isOwnForm(const QString& fileName);

    // Reads a file name (no folder) by the first entry that matches. folderName, the name of
    // the folder the file is in, gives the type when the name has none ("Event", "Parking").
    static ForeignName parse(const QString& fileName, const QString& folderName = QString());

    // The type code of a type word or letter ("Normal", "EVT", "park", "M"), 0 for others.
    static int typeOfWord(const QString& word);

    // The channel (0-2) of a channel letter (F, R, I) or digit (1-3); -1 for others.
    static int channelOfToken(const QString& token);
    // The token that names a channel in the style of token (letter case, or a digit).
    static QString tokenOfChannel(int channel, const QString& token);
};

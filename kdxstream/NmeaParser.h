#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kdx {

// NMEA 0183 position sentences as dash cameras keep them in text tracks, blocks and boxes:
// RMC (recommended minimum) and GGA (fix data), from any talker ($GP, $GN, $GL, ...). The
// sentences of one moment (an RMC and a GGA with the same time) make one fix. A sentence
// whose checksum does not match, or that breaks the syntax, is skipped; so are fields out of
// range. Never reads past the given text.
class NmeaParser {
public:
    struct Fix {
        std::int64_t timecodeMs = -1; // "[ms]" the camera wrote before the sentence, -1 none
        int timeOfDayMs = -1;         // UTC time of the fix, -1 unknown
        int day = -1;                 // days since 2000-01-01 (RMC's date), -1 unknown
        bool hasPosition = false;     // a valid fix with its position
        double latitude = 0;
        double longitude = 0;
        bool hasSpeed = false;
        double speedKmh = 0;
        std::uint32_t fix = 0; // gps::kFix* (a valid fix counts as 3-D unless GGA says DGPS)
        int satellites = -1;   // GGA's count, -1 not said

        // Milliseconds on the receiver's clock (day and time), for spacing fixes; -1 unknown.
        std::int64_t clockMs() const;
    };

    // Appends the fixes of a text, in order.
    static void parse(const char* text, std::size_t size, std::vector<Fix>& fixes);

    // Whether the text holds at least one sentence parse() would take.
    static bool containsSentence(const char* text, std::size_t size);

    // Sentences are short (82 characters by the standard); longer runs are no sentence.
    static constexpr std::size_t kMaxSentence = 128;
};

} // namespace kdx

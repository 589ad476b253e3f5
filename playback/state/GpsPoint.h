#pragma once

// One GPS reading of a recording with its index among the readings. The two flags are the
// camera's 2-bit fix and validity markers, carried as they come.
struct GpsPoint {
    int index = 0;
    float latitude = 0;
    float longitude = 0;
    float speed = 0;
    int flag1 = 0;
    int flag2 = 0;
};

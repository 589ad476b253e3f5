#pragma once

// One G-sensor reading of a recording, in g, with its index among the readings.
struct GSensorPoint {
    int index = 0;
    float x = 0;
    float y = 0;
    float z = 0;
};

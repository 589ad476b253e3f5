#include "PlaybackState.h"

QString PlaybackState::currentFile;
int PlaybackState::playStatus = PlaybackState::PlayIdle;
double PlaybackState::currentTime = 0;
double PlaybackState::currentPosition = 0;
double PlaybackState::totalTime = 0;
int PlaybackState::playChannelCount = 0;
bool PlaybackState::flipState[3] = {false, false, false};
int PlaybackState::volume = 100;
int PlaybackState::speedIndex = 2;
bool PlaybackState::muted = false;
bool PlaybackState::stopRequested = false;
bool PlaybackState::playRequested = false;
bool PlaybackState::firstOpenDone = false;
bool PlaybackState::telemetryPresent = false;
bool PlaybackState::gpsPresent = false;
QList<GpsPoint> PlaybackState::gpsList;
QList<GSensorPoint> PlaybackState::gSensorList;
qint64 PlaybackState::driveOffsetMs = -1;
qint64 PlaybackState::driveLengthMs = 0;

#include "EngineState.h"

int EngineState::channelCount = 0;
int EngineState::playerState = 0;
int EngineState::esDeletePending = 0;
int EngineState::stopReason = 0;

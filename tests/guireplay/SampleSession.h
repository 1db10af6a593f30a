#pragma once
// A session holding one step of every event kind, with line breaks in its texts.
#include "guireplay/RecordModel.h"

guireplay::Session SampleSession();

#pragma once
// Switches record and replay on from the environment: "RECPATH" or "RECFIXPATH" records a
// session, "LUSHL_GUIREPLAY_PLAY" plays one. Call once before the application object is made;
// nothing is created here, the filter comes with the application and goes with it, so a run
// without a toolkit stays free of it.
namespace guireplay {

// True when the environment asks for recording or playing.
bool ArmFromEnvironment();

}  // namespace guireplay

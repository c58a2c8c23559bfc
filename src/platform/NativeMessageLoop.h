#pragma once

/// The message loop of a stand-alone program. A quit stays pending until a loop takes it, so it may
/// be posted before the loop starts. It ends one loop only.

/// Runs until a quit is posted. Windows dispatches the messages of the calling thread. Linux only
/// waits, since windows are served by the host's idle call. [gui thread]
/// @return the result that was given to quitNativeMessageLoop().
int runNativeMessageLoop();

/// Posts a quit. [gui thread]; on Linux [any thread]
void quitNativeMessageLoop(int result);

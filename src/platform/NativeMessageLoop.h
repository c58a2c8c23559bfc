#pragma once

/// The message loop of a stand-alone program. A quit stays pending until it ends a loop, so it may
/// be posted before the loop starts. Each quit ends one loop.

/// Runs until a quit is posted. On Windows it dispatches the messages of the calling thread. On
/// Linux it only waits, since the host's idle call serves the windows. [gui thread]
/// @return the result that was passed to quitNativeMessageLoop().
int runNativeMessageLoop();

/// Posts a quit. [gui thread]; on Linux [any thread]
void quitNativeMessageLoop(int result);

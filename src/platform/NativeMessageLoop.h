#pragma once

/// The message loop of a stand-alone program. A quit stays pending until it ends a loop, so it may
/// be posted before the loop starts. Each quit ends one loop.

/// Runs until a quit is posted. Dispatches the messages of the calling thread on Windows, and pumps
/// the windows that it has opened on Linux. [gui thread]
/// @return the result that was passed to quitNativeMessageLoop().
int runNativeMessageLoop();

/// Posts a quit. [gui thread]; on Linux [any thread]
void quitNativeMessageLoop(int result);

#pragma once

/// The message loop of a program that has no host. A quit is remembered until a loop takes it, so
/// it may be posted before the loop runs, and it ends one loop only.

/// Runs until a quit is posted. Windows dispatches the messages of the calling thread; Linux, where
/// windows are pumped by the host's idle call, only waits. [gui thread]
/// @return what the quit was posted with.
int runNativeMessageLoop();

/// Posts a quit. [gui thread]; on Linux [any thread]
void quitNativeMessageLoop(int result);

#pragma once

/// @return true while a CNativeSmoothSession is available. Wine draws without one; Windows does
/// not.
bool isSmoothSessionOpen();

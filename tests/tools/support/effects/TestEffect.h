#pragma once

#include "hostlayer/VstInterface.h"

/// An effect for tests of the command-line host. To the host it looks like the channel strip. It
/// appends every call to the file named by CORVEL_TEST_LOG, one per line, after the number of the
/// instance. Macros select variants that lack a feature.
AEffect *enterTestEffect(audioMasterCallback host);

#pragma once

#include "hostlayer/VstInterface.h"

/// An effect for the tests of the command-line host. It answers as the channel strip does as far as
/// the host can tell, and appends what it is asked to the file that CORVEL_TEST_LOG names, each
/// line with the number of the instance before it. Macros at its head make variants that lack
/// something.
AEffect *enterTestEffect(audioMasterCallback host);

#pragma once

/// @return the present width of the terminal that standard error is, in characters; 0 if it is no
///         terminal or does not know. [any thread]
int errorStreamColumns();

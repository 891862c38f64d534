#pragma once

/**
 * What the X server reports as an error, it reports later and about anything: an event that was sent to a window which is gone by
 * then is enough. Xlib's own answer is to end the process, and with it all unsaved work.
 */
namespace X11Errors
{
/** From here on errors of the X server become warnings in the log. */
void TurnIntoWarnings();
}

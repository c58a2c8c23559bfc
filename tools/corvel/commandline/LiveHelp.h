#pragma once

namespace Tessitor::Tool {

inline constexpr const char *liveHelp = R"(
Plays the effect live, as a client of a JACK server. PipeWire serves JACK clients, too. The
server must be running.

The program plays until Ctrl-C or another signal, until --seconds are over, or until the
editor is closed. Its exit status is then 0. If the server shuts down, the status is 1.

Ports
  The client has the ports in_left, in_right, out_left and out_right, and with --midi or --cc
  also midi_in. Without --no-connect they are connected to the first two inputs and the first
  two outputs of the system, and midi_in to all of its MIDI devices.

Settings
  --program, --preset, --chain and --set work as in corvel render. --save-preset saves the
  settings when the program ends, with what was changed in the editor and by MIDI.

MIDI
  A program change selects a program; 0 is the first. Each --cc NUMBER=PARAMETER lets a
  controller from 0 to 119 set a parameter: 0 to 127 covers its whole range. It may be
  repeated, also with the same controller or the same parameter. --channel listens to one
  channel only. Other messages go to the effect.

Time
  The effect follows the server's transport, and its tempo if a program on the server sets one.
  Otherwise the tempo is --tempo.

Xruns are moments at which a program or the server was too late, so that the sound was
interrupted. They are counted for the whole server.

Examples
  corvel live --program "Lead Vocal" --set CmpThresh=-24dB
  corvel live --preset my.json --editor
  corvel live --midi --channel 1 --cc 21=InGain --cc 22=RvTlLvl
)";

}  // namespace Tessitor::Tool

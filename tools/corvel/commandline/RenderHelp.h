#pragma once

namespace Tessitor::Tool {

inline constexpr const char *renderHelp = R"(
Files
  OUT is a file, or a folder if it exists as one or ends in a slash. --out-dir names a folder
  instead, and then all FILES are inputs. In a folder, which is created if necessary, outputs
  are named after their inputs. Several inputs always need a folder; they are rendered on all
  cores or as many at a time as --jobs says, each through its own instance of the effect. If
  one fails, the others are still rendered.

  An existing file is only replaced with --force, and only when the output is complete: after
  a failure it is unchanged. It passes on its mode; a write-protected file is not replaced.
  --skip-existing passes over outputs that are newer than their inputs, so the same command
  continues a batch that was interrupted. A name that starts with a dash follows after "--".

  Inputs are WAV, AIFF, FLAC, Ogg, MP3, W64, CAF and AU files with one or two channels at any
  sample rate. The output keeps the rate of its input. A mono file is processed as if the host
  had connected only the left input. The output is stereo, or with --channels mono the sum of
  both channels at half their level.

  The output keeps the title, the artist and the other texts of its input, its cue points, and
  the broadcast chunk of a WAV file, as far as its container can hold them. With --start the
  cue points and the time reference move along.

  Samples that are infinite or not a number are rendered as 0, and a warning says how many.
  --keep-nan leaves them alone; they usually silence the rest of the file.

  The container is taken from --format, else from OUT's extension, else from the input. The
  sample type is taken from --format, else from the input, else it is the closest that the
  container supports. Integer formats clip samples beyond full scale, and a warning says how
  many (see --clip); floating-point formats keep them.
    wav, aiff   8, 16, 24, 32, float, double
    flac        8, 16, 24
    ogg         vorbis, opus
  W64, CAF, AU and MP3 are only read. Opus does not support 44100 Hz: with --resample, such an
  input becomes 48000 Hz.

Streams
  IN may be "-" for standard input, and OUT for standard output. The report then goes to
  standard error. What arrives as WAV is rendered while it arrives, for as long as it does;
  other files are first read to their end. The output is WAV, or wav, flac or ogg with
  --format. The header of a WAV stream has no length if the input has none.

  With --raw, streams have no header: RATE in Hz, CHANNELS 1 or 2, and FORMAT one of s16, s24,
  s32 (integers), f32, f64 (floating point), all little-endian. It holds for input and output,
  unless --format asks for another output.

Times
  A TIME is a number of seconds, such as 90, 1.5s or 250ms, or minutes or hours and minutes in
  front, such as 1:30 or 1:02:03.5. --start beyond the end of the input is an error; --length
  beyond it means the end. With --tail auto, the output ends with the last sample above -90
  dBFS before 2 seconds and a beat of silence.

Batches
  --recursive takes folders as inputs and keeps their sub-folders in the output folder. In
  folders, files count whose names end like audio files. Hidden files and folders are left
  out, and so is the output folder.

  --list reads the names of more inputs from a file, or with "-" from standard input. Each
  line is a name, with all its spaces; if there are zero bytes, as from find -print0, they
  separate the names. Empty lines are skipped.

  --name is the pattern of the outputs' names, such as "{stem}-{program}". {stem} is the
  input's name without its ending and {ext} the ending, {program} the name of the program,
  {index} the number of the input. A slash makes a sub-folder, {{ is a brace. Unless the
  pattern ends like an audio file or in .{ext}, the ending of --format or of the input is
  added. Characters of a program's name that file names cannot have become "-".

  --dry-run prints each input and output, what would be skipped and what would fail, and
  writes nothing. --quiet leaves out reports, notes and warnings. --json prints one line for
  each file as it ends, with its "status" (rendered, skipped, failed, interrupted or planned)
  and all settings.

Loudness
  --loudness reports the integrated loudness by EBU R 128, in LUFS, and the true peak, in dBTP,
  of each input and output. Measuring takes longer than rendering, so it is only done on
  request, or for --normalize or --plot. Sound that is silent or shorter than 0.4 s has no
  loudness. A mono file counts as one channel: the same sound in stereo is 3 LU louder.

  --normalize gives the whole output one gain, so that its loudness is -16LUFS, for example,
  or its true peak is -1dBTP. Until the gain is known, the sound is kept in a temporary file
  beside the output.

  --clip says what happens to samples beyond full scale in integer formats: warn clips them
  and counts them, fail does not write that file, and headroom turns the whole output down as
  far as necessary, even if it then misses the target of --normalize.

  --dither adds noise of one step of the output before rounding (TPDF), which makes the
  rounding error independent of the sound. It is for outputs of 8 and 16 bits; others stay as
  they are. The noise always starts the same, so a command always writes the same bytes.

Pictures
  --plot draws the waveform and the loudness of the last 3 s, before and after, and the
  difference. FILE ends in .svg or .png; "svg" or "png" alone puts each picture beside its
  output: out.wav.svg. An .svg shows light or dark colours, whichever the viewer prefers; a
  .png is light. --light and --dark choose. An existing picture is only replaced with --force.

Settings
  --set NAME=VALUE sets a parameter and may be repeated; of several values for one parameter
  the last one counts. corvel params lists the names and ranges; case does not matter. A
  VALUE is a text as the effect displays it, with its unit: -18dB, "120 Hz", "1.2 kHz",
  3:1, Linked, 100:80. If several values display that text, the middle one is used, or 0, 1
  or 0.5 if it is among them. If no value displays it, the closest displayed number is used.
  A number outside the range is an error. @VALUE is the normalised value from 0 to 1 that
  hosts store; so is a plain number from 0 to 1.

  What is asked for is what is heard, whatever the order: a hard pan is reached through a
  position in between, as by hand, and DlySync wins over DlyTime.

  --chain lists the modules in running order, separated by commas: Balance, Pan, Gain,
  3Band, Rumble Filter, HiPass, Presence, Parametric, Gate, Compressor, DeEsser,
  Modulator 1, Modulator 2, Warmer, Delay, Reverb. Each may appear only once; "none" is the
  empty chain.

  A program's name may be shortened as long as only one begins with it. --preset loads a
  program from an .fxp, .fxb or JSON file instead of --program; FILE:N is program N of a bank.
  --save-preset saves the settings to a new file, ready for --preset. See corvel preset --help.
  The program or preset is set first, then the chain, then the parameters.

Automation
  --automate reads a file with lines of TIME PARAMETER VALUE, in any order:
    # seconds or m:ss.fff, separated by spaces, tabs, commas or semicolons
    0         InGain  -oo
    0:01.500  InGain  0 dB
    62.25     DlyPngPng  On
  A VALUE is one that --set takes. Between two points of a parameter, its normalised value
  moves in a straight line; two points at the same time make a jump. A parameter that is a
  choice, like DlyPngPng, keeps each value until its next point. Before the first point
  the program or --set decides, and after the last one the value stays. Times count from the
  start of the file, with --start too, and may lie before it or after its end.

  A point takes effect at its exact sample. In between, values are updated once per block,
  as in host programs: every 23 ms with the usual 1024 frames at 44.1 kHz. A smaller --block
  makes movements smoother.

Precision and blocks
  With --double the compressor and the de-esser stay at rest: the strip has them only in
  single precision. --block changes the sound if the compressor is in use and CmpLink is
  Separate; otherwise it does not.

Examples
  corvel render voice.wav out.wav --program "Lead Vocal" --set CmpThresh=-24dB
  corvel render *.flac mixed/ --chain "Rumble Filter,Compressor" --format wav:24
  corvel render takes --recursive --out-dir mixed --name "{stem}-{program}" --skip-existing
  corvel render phone.wav out.wav --resample --json
  corvel render take.wav podcast.wav --normalize -16LUFS --clip headroom --format wav:16 --dither
  sox take.mp3 -t wav - | corvel render - - --program "Lead Vocal" | flac -o out.flac -
)";

}  // namespace Tessitor::Tool

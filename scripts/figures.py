#!/usr/bin/python3
"""figures.py CORVEL FOLDER: draws what each module does, from renders by the real effect, as PNG files."""

import subprocess
import sys
import tempfile
from pathlib import Path

import matplotlib
import numpy as np
import soundfile

matplotlib.use("agg")
import matplotlib.pyplot as plt  # noqa: E402

RATE = 44100
corvel = Path(sys.argv[1]).resolve()
folder = Path(sys.argv[2])

plt.rcParams.update(
    {
        "savefig.dpi": 120,
        "figure.facecolor": "white",
        "font.size": 9,
        "axes.grid": True,
        "grid.color": "#dddddd",
        "axes.spines.top": False,
        "axes.spines.right": False,
        "legend.frameon": False,
        "axes.prop_cycle": matplotlib.cycler(color=["#0b6e99", "#d1495b", "#66a182", "#8d6a9f"]),
    }
)


# Sound through the effect


def play(sound, chain, **settings):
    """Renders `sound` (one or two columns) with the program Empty, the modules of `chain` and `settings`."""
    stereo = sound if sound.ndim == 2 else np.column_stack([sound, sound])
    with tempfile.TemporaryDirectory() as work:
        source, result = Path(work, "in.wav"), Path(work, "out.wav")
        soundfile.write(source, stereo, RATE, subtype="FLOAT")
        call = [corvel, "render", source, result, "--program", "Empty", "--chain", chain]
        for name, value in settings.items():
            call += ["--set", f"{name.replace('Eq', '3EQ')}={value}"]
        subprocess.run(call, check=True, stdout=subprocess.DEVNULL)
        return soundfile.read(result, dtype="float64")[0]


def impulse(seconds, level=0.25):
    sound = np.zeros(int(seconds * RATE))
    sound[0] = level
    return sound


def tone(hertz, seconds, level_db):
    time = np.arange(int(seconds * RATE)) / RATE
    return 10 ** (level_db / 20) * np.sin(2 * np.pi * hertz * time)


def steps(levels_db, seconds):
    """A square wave that steps from level to level. It is never 0, so every sample shows the gain."""
    size = np.concatenate([np.full(int(seconds * RATE), 10 ** (db / 20)) for db in levels_db])
    return size * np.where(np.arange(size.size) // 22 % 2 == 0, 1.0, -1.0)


def in_db(ratio):
    return 20 * np.log10(np.maximum(np.abs(ratio), 1e-6))


def rms_db(sound):
    return in_db(np.sqrt(np.mean(sound**2)))


# Pictures


def panels(*titles, height=2.9):
    figure, axes = plt.subplots(1, len(titles), figsize=(9.0, height), layout="constrained")
    for axis, title in zip(np.atleast_1d(axes), titles):
        axis.set_title(title, loc="left", fontweight="bold", fontsize=9)
    return figure, np.atleast_1d(axes)


def save(figure, name):
    figure.savefig(folder / f"{name}.png", metadata={"Software": None})
    plt.close(figure)


def name_axes(axis, x, y):
    axis.set_xlabel(x)
    axis.set_ylabel(y)


def draw_response(axis, chain, label, **settings):
    level, frames = 0.25, 1 << 16
    heard = play(impulse(frames / RATE, level), chain, **settings)[:, 0]
    response = in_db(np.fft.rfft(heard) / level)
    hertz = np.fft.rfftfreq(frames, 1 / RATE)
    picked = np.unique(np.geomspace(4, hertz.size - 1, 600).astype(int))
    axis.semilogx(hertz[picked], response[picked], label=label)


def finish_responses(axes, lowest, bottom, top):
    for axis in axes:
        axis.set(xlim=(lowest, 20000), ylim=(bottom, top))
        ticks = [t for t in (10, 20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000) if t >= lowest]
        axis.set_xticks(ticks, [f"{t // 1000}k" if t >= 1000 else str(t) for t in ticks])
        axis.minorticks_off()
        name_axes(axis, "Hz", "dB")
        axis.legend(fontsize=8)


def levels():
    figure, (balance, pan, gain) = panels("Balance", "Pan", "Gain")
    knob = np.linspace(0.0125, 0.9875, 40)
    left_only = np.column_stack([np.full(64, 0.5), np.zeros(64)])

    def gains(sound, module):
        return np.array([play(sound, module, **{module: f"@{v}"})[-1] / 0.5 for v in knob])

    both = gains(np.full(64, 0.5), "Balance")
    balance.plot(knob, both[:, 0], ".", label="left")
    balance.plot(knob, both[:, 1], ".", label="right")
    left, right = gains(left_only, "Pan"), gains(left_only[:, ::-1], "Pan")
    for data, marker, label in ((left[:, 0], ".", "L to L"), (left[:, 1], ".", "L to R"),
                                (right[:, 0], "x", "R to L"), (right[:, 1], "x", "R to R")):
        pan.plot(knob, data, marker, markersize=4, label=label)
    gain.plot(knob, in_db(gains(np.full(64, 0.5), "Gain")[:, 0]), ".")
    name_axes(balance, "knob", "gain")
    name_axes(pan, "knob", "gain")
    name_axes(gain, "knob", "dB")
    balance.legend(fontsize=8)
    pan.legend(fontsize=8, loc="center", bbox_to_anchor=(0.5, 0.3))
    save(figure, "levels")


def filters():
    figure, axes = panels("Rumble Filter (RmblFreq)", "HiPass (HPFreq)")
    for value in ("20 Hz", "60 Hz", "125 Hz"):
        draw_response(axes[0], "Rumble Filter", value, RmblFreq=value)
    for value in ("100 Hz", "450 Hz", "2000 Hz"):
        draw_response(axes[1], "HiPass", value, HPFreq=value)
    finish_responses(axes, 10, -48, 6)
    save(figure, "high-pass")

    figure, axes = panels("Presence (PresFreq, PresGain)", "Parametric (ParaFreq, ParaBW, ParaGain)")
    for frequency, gain in (("1000 Hz", "6dB"), ("2500 Hz", "12dB"), ("6000 Hz", "-12dB")):
        draw_response(axes[0], "Presence", f"{frequency}, {gain}", PresFreq=frequency, PresGain=gain)
    for frequency, width, gain in (("200 Hz", "1.00", "6dB"), ("800 Hz", "0.50", "12dB"), ("3000 Hz", "0.13", "-12dB")):
        draw_response(axes[1], "Parametric", f"{frequency}, {width} Oct, {gain}",
                      ParaFreq=frequency, ParaBW=f"{width}Oct", ParaGain=gain)
    finish_responses(axes, 50, -15, 15)
    save(figure, "bells")

    figure, axes = panels("3Band, crossovers at 283 and 3200 Hz", "3Band, 3EQMid at -12 dB")
    for label, bands in (("low +6", {"EqLo": "6dB"}), ("mid -6", {"EqMid": "-6dB"}), ("high +12", {"EqHi": "12dB"})):
        draw_response(axes[0], "3Band", label + " dB", **bands)
    for low, high in (("100 Hz", "1600 Hz"), ("283 Hz", "3200 Hz"), ("800 Hz", "6400 Hz")):
        draw_response(axes[1], "3Band", f"{low} to {high}", EqMid="-12dB", EqXLoMd=low, EqXMdHi=high)
    finish_responses(axes, 20, -15, 15)
    save(figure, "three-band")


def draw_static(axis, chain, label, hertz, **settings):
    """Draws output level against input level for a steady tone, after everything has settled."""
    inputs = np.arange(-60, 1)
    outputs = [rms_db(play(tone(hertz, 2.0, db), chain, **settings)[-RATE // 4 :]) + 3.01 for db in inputs]
    axis.plot(inputs, np.maximum(outputs, -80), label=label)


def draw_steps(axis, chain, label, levels_db, seconds, **settings):
    sound = steps(levels_db, seconds)
    gain = in_db(play(sound, chain, **settings)[:, 0] / sound)
    time = np.arange(sound.size) / RATE
    axis.plot(1000 * time[::44], gain[::44], label=label)


def finish_dynamics(static, step, step_title, bottom):
    static.plot([-60, 0], [-60, 0], color="#bbbbbb", linewidth=0.8, zorder=0)
    name_axes(static, "input, dBFS", "output, dBFS")
    static.set_ylim(bottom, 3)
    name_axes(step, "ms", "gain, dB")
    static.legend(fontsize=8)
    step.legend(fontsize=8, loc="lower left", title=step_title, title_fontsize=8)


def dynamics():
    figure, (static, step) = panels("Gate: steady tone", "Gate: -60, then -10, then -60 dBFS")
    for threshold in ("-50dB", "-36dB", "-20dB"):
        draw_static(static, "Gate", f"GateThrsh {threshold}", 1000, GateThrsh=threshold)
    for attack, release in (("1ms", "50ms"), ("20ms", "240ms"), ("50ms", "500ms")):
        draw_steps(step, "Gate", f"{attack}, {release}", (-60, -10, -60), 0.5,
                   GateThrsh="-36dB", GateAtt=attack, GateRel=release)
    step.set_ylim(-62, 3)
    finish_dynamics(static, step, "GateAtt, GateRel", -83)
    save(figure, "gate")

    figure, (static, step) = panels("Compressor: steady tone, CmpThresh -30 dB", "Compressor: -50, then -10, then -50 dBFS")
    for ratio in ("2.0:1", "4.5:1", "8.0:1"):
        draw_static(static, "Compressor", f"CmpRatio {ratio}", 1000, CmpRatio=ratio)
    for attack, release in (("1ms", "20ms"), ("10ms", "100ms"), ("50ms", "200ms")):
        draw_steps(step, "Compressor", f"{attack}, {release}", (-50, -10, -50), 0.5,
                   CmpAtt=attack, CmpRel=release)
    finish_dynamics(static, step, "CmpAtt, CmpRel", -62)
    save(figure, "compressor")

    figure, (by_frequency, step) = panels("DeEsser: steady tones of -12 dBFS", "DeEsser: -60, then -12, then -60 dBFS")
    tones = np.geomspace(500, 16000, 46)
    for frequency, band in (("2000 Hz", "Wide"), ("6000 Hz", "Wide"), ("6000 Hz", "Narrow")):
        gains = [rms_db(play(tone(hertz, 2.0, -12), "DeEsser", DeSFreq=frequency, DeSBand=band)[-RATE // 4 :]) + 15.01
                 for hertz in tones]
        by_frequency.semilogx(tones, gains, label=f"DeSFreq {frequency}, {band}")
    ticks = (500, 1000, 2000, 5000, 10000)
    by_frequency.set_xticks(ticks, ["500", "1k", "2k", "5k", "10k"])
    by_frequency.minorticks_off()
    name_axes(by_frequency, "Hz", "gain, dB")
    for speed in ("0.0", "0.5", "1.0"):
        draw_steps(step, "DeEsser", f"DeSSpeed {speed}", (-60, -12, -60), 0.7, DeSSpeed=speed, DeSFreq="2000 Hz")
    name_axes(step, "ms", "gain, dB")
    by_frequency.set_ylim(top=15)
    by_frequency.legend(fontsize=8, loc="upper left")
    step.legend(fontsize=8, loc="lower left")
    save(figure, "de-esser")


def warmer():
    figure, (curve, spectrum) = panels("Warmer: output over input", "Warmer: overtones of 441 Hz at -12 dBFS")
    ramp = np.linspace(-0.6, 1.0, 2001)
    sine = tone(441, 1.0, -12)
    for value in ("0", "0.5", "1"):
        curve.plot(ramp, play(ramp, "Warmer", Warmer=value)[:, 0], label=f"Warmer {float(value):.0%}")
        amplitude = in_db(np.fft.rfft(play(sine, "Warmer", Warmer=value)[:, 0]) * 2 / sine.size)
        overtones = np.arange(1, 9)
        spectrum.plot(overtones, np.maximum(amplitude[overtones * 441], -120), "o-", label=f"Warmer {float(value):.0%}")
    curve.set_ylim(-2.2, 1.2)
    spectrum.set_ylim(-100, 0)
    name_axes(curve, "input", "output")
    name_axes(spectrum, "harmonic", "dBFS")
    for axis in (curve, spectrum):
        axis.legend(fontsize=8)
    save(figure, "warmer")


def modulators():
    figure, axes = panels("Vibrato: delay over time", "ADT: delay over time", "Phaser: notches over time")
    seconds, slope = 4.0, 0.1
    ramp = slope * np.arange(int(seconds * RATE)) / RATE
    shared = {"Mod1Spd": "0.63Hz", "Mod1FdBk": "0", "Mod1Mix": "1"}
    for axis, kind, width in ((axes[0], "Vibrato", "5ms"), (axes[1], "ADT", "30ms")):
        heard = play(ramp, "Modulator 1", Mod1Type=kind, Mod1Wdth=width, Mod1Dpth="50%", Mod1Sprd="1", **shared)
        for channel, label in ((0, "left"), (1, "right")):
            delay = 1000 * (ramp - heard[:, channel]) / slope
            axis.plot(np.arange(ramp.size)[4410::220] / RATE, delay[4410::220], label=f"{label}, Mod1Wdth {width}")
        name_axes(axis, "s", "ms")
        axis.set_ylim(bottom=0)
        axis.legend(fontsize=8)
    noise = np.random.default_rng(1).uniform(-0.3, 0.3, int(seconds * RATE))
    heard = play(noise, "Modulator 1", Mod1Type="Phaser", Mod1Wdth="5ms", Mod1Dpth="50%", Mod1Spd="0.63Hz",
                 Mod1FdBk="0.5", Mod1Mix="0.5")[:, 0]
    axes[2].specgram(heard, NFFT=4096, Fs=RATE, noverlap=3584, cmap="magma", vmin=-85, vmax=-45)
    axes[2].set_ylim(0, 1500)
    axes[2].grid(False)
    name_axes(axes[2], "s", "Hz")
    save(figure, "modulators")


def delay():
    figure, axes = panels("Delay: an impulse on the left", "Delay: the same with DlyPngPng")
    left_impulse = np.column_stack([impulse(3.0, 1.0), np.zeros(3 * RATE)])
    for axis, ping_pong in zip(axes, ("0", "1")):
        heard = play(left_impulse, "Delay", DlyTime="400ms", DlyFdBk="0.6", DlyPngPng=ping_pong)
        for channel, label, sign in ((0, "left", 1), (1, "right", -1)):
            at = np.flatnonzero(np.abs(heard[:, channel]) > 1e-3)
            axis.vlines(at / RATE, 0, sign * np.abs(heard[at, channel]), color=f"C{channel}", label=label)
        axis.axhline(0, color="#888888", linewidth=0.6)
        axis.set(xlim=(-0.05, 3), ylim=(-0.6, 0.6))
        axis.set_yticks([-0.5, 0, 0.5], ["0.5", "0", "0.5"])
        name_axes(axis, "s", "level (left up, right down)")
        axis.legend(fontsize=8)
    save(figure, "delay")


def reverb():
    figure, (response, decay) = panels("Reverb: impulse response, left", "Reverb: decay")
    # The spread comes after the room size: it fits the diffusers to the room.
    wet = {"RvRmSize": "20m2", "RvSpread": "0.4", "RvDryLvl": "0", "RvERLvl": "0.7", "RvTlLvl": "0.7"}
    heard = play(impulse(1.0, 1.0), "Reverb", RvTime="2.00s", **wet)[:, 0]
    picked = slice(0, int(0.5 * RATE))
    response.plot(1000 * np.arange(heard.size)[picked] / RATE, heard[picked], linewidth=0.5)
    name_axes(response, "ms", "level")
    for time in ("0.50s", "2.00s", "8.00s"):
        heard = play(impulse(8.0, 1.0), "Reverb", RvTime=time, **wet)
        energy = np.cumsum((heard**2).sum(axis=1)[::-1])[::-1]
        left = 10 * np.log10(np.maximum(energy / energy[0], 1e-9))
        decay.plot(np.arange(left.size)[::441] / RATE, left[::441], label=f"RvTime {time}")
    decay.set_ylim(-65, 2)
    name_axes(decay, "s", "energy left, dB")
    decay.legend(fontsize=8)
    save(figure, "reverb")


for draw in (levels, filters, dynamics, warmer, modulators, delay, reverb):
    draw()

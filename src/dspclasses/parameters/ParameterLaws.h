#pragma once

/// The laws that turn the host's normalised value, 0 to 1, into a module's own unit. All are
/// computed in single precision and none is clamped: a value outside the range follows the formula.
/// [any thread]
namespace ParameterLaws {

float raw(float v);  ///< v itself

/// dB: rises from -60 at 0 to -15 at 0.25, drops to -20 there, rises to 0 at 0.5 and to +6 at 1.
float gain(float v);
float plusMinus12(float v);  ///< dB
float threshold(float v);    ///< -60 to 0 dB

float lowCrossover(float v);         ///< 100 to 800 Hz
float highCrossover(float v);        ///< 1600 to 6400 Hz
float rumbleFrequency(float v);      ///< 1 to 125 Hz
float hiPassFrequency(float v);      ///< 100 to 2000 Hz
float presenceFrequency(float v);    ///< 1000 to 6000 Hz
float parametricFrequency(float v);  ///< 100 to 6000 Hz, with a step at the top
float bandwidth(float v);            ///< 0.125 to 1 octave
float deEsserFrequency(float v);     ///< 2000 to 8000 Hz, with a step at the top
float modulationSpeed(float v);      ///< 0.2 to 2 Hz

float gateAttack(float v);         ///< 1 to 500 ms
float gateRelease(float v);        ///< 50 to 1000 ms
float compressorAttack(float v);   ///< 1 to 100 ms
float compressorRelease(float v);  ///< 2 to 200 ms
float compressorRatio(float v);    ///< 1 to 8
float deEsserRatio(float v);       ///< 1 to 7
float modulationWidth(float v);    ///< 5 to 40 ms
float modulationDepth(float v);    ///< 0 to 0.5
float delayTime(float v);          ///< 50 to 1500 ms
float roomSize(float v);           ///< 1 to 100 m2 in the lower half, 100 to 400 m2 in the upper
float reverbTime(float v);         ///< 0.2 to 8 s

}  // namespace ParameterLaws

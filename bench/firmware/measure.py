"""How near a decoded sound comes to its original, in dB: two published measures.

Both cut the sounds into frames of 30 ms under a Hanning window, three quarters over one another,
and give the mean over the frames that are not silent in the original. The figures of which the mean
is made are held between -10 and 35 dB, as is usual: more of a difference, or less, is not heard.
"""

from __future__ import annotations

import numpy as np

LOW, HIGH = -10.0, 35.0  # dB
FRAME = 0.030  # s
OVERLAP = 4  # frames that lie over one sample
WEIGHT = 0.2  # the power of a band's magnitude that it counts with

# Samples reach to this level. Below SILENCE of its root mean square a frame counts as silent. A
# sine at UNHEARD of it is at the threshold of hearing where a full one plays at 80 dB SPL.
FULL_SCALE = 32768
SILENCE = 1e-3
UNHEARD = 1e-4

# The edges of the critical bands of hearing in Hz: the 24 of Zwicker (1961), and the rest of what
# is heard.
BANDS = [20, 100, 200, 300, 400, 510, 630, 770, 920, 1080, 1270, 1480, 1720, 2000, 2320, 2700, 3150,
         3700, 4400, 5300, 6400, 7700, 9500, 12000, 15500, 20500]


def windowed_frames(sound: np.ndarray, rate: int) -> np.ndarray:
    length = round(FRAME * rate)
    windows = np.lib.stride_tricks.sliding_window_view(np.asarray(sound, float), length)
    return windows[::length // OVERLAP] * np.hanning(length)


def _sounding(original: np.ndarray, decoded: np.ndarray,
              rate: int) -> tuple[np.ndarray, np.ndarray]:
    """The frames of both, as far as both sounds go, where the original is not silent."""
    count = min(len(original), len(decoded))
    clean, coded = windowed_frames(original[:count], rate), windowed_frames(decoded[:count], rate)
    level = np.sqrt((clean ** 2).sum(axis=1) / (np.hanning(clean.shape[1]) ** 2).sum())
    sounding = level >= SILENCE * FULL_SCALE
    return clean[sounding], coded[sounding]


def _ratio(signal: np.ndarray, error: np.ndarray) -> np.ndarray:
    """Energies to limited dB. Where there is no error it is the most, whatever the signal."""
    with np.errstate(divide="ignore", invalid="ignore"):
        ratio = 10 * np.log10(signal / error)
    return np.clip(np.where(error == 0, HIGH, ratio), LOW, HIGH)


def band_magnitudes(frames: np.ndarray, rate: int) -> np.ndarray:
    """Those of each frame in each band below half the sampling frequency, 1 for a full sine."""
    size = 2 ** int(np.ceil(np.log2(2 * frames.shape[1])))
    spectrum = np.abs(np.fft.rfft(frames, size)) / (FULL_SCALE * size / 2)
    edges = [round(edge * size / rate) for edge in BANDS if edge < rate / 2] + [spectrum.shape[1]]
    return np.stack([spectrum[:, low:high].sum(axis=1)
                     for low, high in zip(edges, edges[1:])], axis=1)


def weighted_bands(clean: np.ndarray, coded: np.ndarray) -> np.ndarray:
    """The mean of each frame over its bands, of which these are the magnitudes."""
    heard = (clean > UNHEARD) | (coded > UNHEARD)
    clean, coded = np.maximum(clean, UNHEARD), np.maximum(coded, UNHEARD)
    weights = clean ** WEIGHT * heard
    return (weights * _ratio(clean ** 2, (clean - coded) ** 2)).sum(axis=1) / weights.sum(axis=1)


def fw_snr_seg(original: np.ndarray, decoded: np.ndarray, rate: int) -> float:
    """Frequency-weighted segmental SNR (Tribolet and others 1978; this form Hu and Loizou 2008).

    It compares the magnitudes of each band, and not the waves: a shift in phase, which is not
    heard, costs little. It leaves out the bands that are below the threshold of hearing in both
    sounds: in a pure tone most are, and what little they hold would count more than the tone.
    """
    clean, coded = (band_magnitudes(frames, rate) for frames in _sounding(original, decoded, rate))
    return float(np.mean(weighted_bands(clean, coded)))


def snr_seg(original: np.ndarray, decoded: np.ndarray, rate: int) -> float:
    """Segmental SNR: of the waves, without regard to hearing."""
    clean, coded = _sounding(original, decoded, rate)
    return float(np.mean(_ratio((clean ** 2).sum(axis=1), ((clean - coded) ** 2).sum(axis=1))))

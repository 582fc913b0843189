"""The measures on sounds of which the answer is known beforehand."""

from __future__ import annotations

import unittest

import numpy as np

from measure import band_magnitudes, fw_snr_seg, snr_seg, weighted_bands, windowed_frames

RATES = (8000, 16000, 32000)
NOISE = np.random.RandomState(1)


def noise(count: int, level: float) -> np.ndarray:
    """White, of this root mean square."""
    return NOISE.standard_normal(count) * level


def sine(rate: int, frequency: float, level: float, phase: float = 0) -> np.ndarray:
    """One second, with this peak as a share of full scale."""
    return 32768 * level * np.sin(2 * np.pi * frequency * np.arange(rate) / rate + phase)


class Both(unittest.TestCase):
    """What holds of either measure, at every rate."""

    def check(self, original, decoded, answer):
        for rate in RATES:
            sound = original(rate)
            for measure in (fw_snr_seg, snr_seg):
                with self.subTest(measure=measure.__name__, rate=rate):
                    self.assertAlmostEqual(measure(sound, decoded(sound), rate), answer, places=6)

    def test_the_same_sound_has_the_most(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: sound, 35)

    def test_a_tenth_too_loud_is_an_error_of_20_db(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: 1.1 * sound, 20)

    def test_a_tenth_too_soft_is_an_error_of_20_db(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: 0.9 * sound, 20)

    def test_twice_as_loud_has_an_error_as_large_as_the_sound(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: 2 * sound, 0)

    def test_large_errors_are_limited(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: 10 * sound, -10)

    def test_small_errors_are_limited(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: 1.001 * sound, 35)

    def test_what_is_silent_in_the_original_is_left_out(self):
        def with_pause(rate):
            return np.concatenate([noise(rate, 3000), np.zeros(rate)])

        def bad_in_the_pause(sound):
            half = len(sound) // 2
            return np.concatenate([1.1 * sound[:half], noise(half, 3000)])

        for rate in RATES:
            sound = with_pause(rate)
            for measure in (fw_snr_seg, snr_seg):
                # The frames over the edge have a part of the pause.
                found = measure(sound, bad_in_the_pause(sound), rate)
                self.assertTrue(18.5 < found <= 20, f"{measure.__name__}: {found}")

    def test_a_sound_that_ends_early_is_judged_as_far_as_it_goes(self):
        self.check(lambda rate: noise(rate, 3000), lambda sound: 1.1 * sound[:len(sound) // 2], 20)
        self.check(lambda rate: noise(rate, 3000),
                   lambda sound: 1.1 * np.concatenate([sound, sound]), 20)


class Parts(unittest.TestCase):
    def test_frames_of_30_ms_begin_7_5_ms_apart(self):
        frames = windowed_frames(np.ones(8000), 8000)
        self.assertEqual(frames.shape, ((8000 - 240) // 60 + 1, 240))
        # The window rises from nothing to the middle and falls to nothing again.
        self.assertAlmostEqual(frames[0, 0], 0)
        self.assertAlmostEqual(frames[0, 60], 0.5, delta=0.01)
        self.assertAlmostEqual(frames[0, 120], 1, delta=0.001)
        self.assertAlmostEqual(frames[0, 239], 0)

    def test_a_full_sine_has_a_magnitude_of_1_in_its_band(self):
        # The middles of the tenth and the 20th band of Zwicker's table.
        for rate, frequency, band, count in ((8000, 1170, 9, 18), (16000, 1170, 9, 22),
                                             (32000, 1170, 9, 25), (32000, 5800, 19, 25)):
            with self.subTest(rate=rate, frequency=frequency):
                frames = windowed_frames(sine(rate, frequency, 1), rate)
                magnitudes = band_magnitudes(frames, rate)
                self.assertEqual(magnitudes.shape[1], count)
                self.assertTrue(np.all(magnitudes.argmax(axis=1) == band))
                self.assertAlmostEqual(magnitudes[:, band].mean(), 1, delta=0.05)


class Waves(unittest.TestCase):
    def test_noise_at_a_level_gives_that_level(self):
        for rate in RATES:
            sound = noise(4 * rate, 3000)
            for level in (0, 10, 20, 30):
                heard = sound + noise(len(sound), 3000 * 10 ** (-level / 20))
                self.assertAlmostEqual(snr_seg(sound, heard, rate), level, delta=0.4)

    def test_sees_a_shift_in_phase(self):
        # The difference of a sine and a cosine is a sine 3 dB above either.
        self.assertAlmostEqual(
            snr_seg(sine(8000, 1000, 0.5), sine(8000, 1000, 0.5, np.pi / 2), 8000), -3.01, places=1)


class Bands(unittest.TestCase):
    def test_noise_five_db_down_counts_as_much_more(self):
        # The figure itself lies above the level of the noise: 6 dB for a lone magnitude, of which
        # the noise turns the phase as well (the mean of 1 / cos^2 is 4 in dB), and more for a band,
        # over which the rest evens out.
        for rate in RATES:
            sound = noise(4 * rate, 3000)
            grain = noise(len(sound), 3000)
            found = [fw_snr_seg(sound, sound + grain * 10 ** (-level / 20), rate)
                     for level in (10, 15)]
            for level, figure in zip((10, 15), found):
                self.assertTrue(level + 6 < figure < level + 16, f"{rate} Hz, {level}: {figure}")
            self.assertAlmostEqual(found[1] - found[0], 5, delta=1, msg=f"{rate} Hz: {found}")

    def test_more_noise_is_never_better(self):
        for rate in RATES:
            sound = noise(rate, 3000)
            grain = noise(rate, 3000)
            found = [fw_snr_seg(sound, sound + grain * 10 ** (-level / 20), rate)
                     for level in range(-20, 50, 5)]
            self.assertEqual(found, sorted(found))

    def test_does_not_see_a_shift_in_phase(self):
        for rate in RATES:
            found = fw_snr_seg(sine(rate, 990, 0.5), sine(rate, 990, 0.5, np.pi / 2), rate)
            self.assertGreater(found, 30)

    def test_a_band_counts_by_the_fifth_root_of_its_magnitude(self):
        # The first band lies 30 dB above the second, and counts 10 ** (30 / 20 / 5) times.
        clean, weight = np.array([[1, 0.0316228]]), 1.99526
        for heard, answer in ((clean * [1.1, 1], (weight * 20 + 35) / (weight + 1)),
                              (clean * [1, 1.1], (weight * 35 + 20) / (weight + 1))):
            self.assertAlmostEqual(weighted_bands(clean, heard)[0], answer, places=3)

    def test_leaves_out_what_neither_sound_lets_hear(self):
        clean = np.array([[0.5, 0.5e-4, 0.5e-4]])
        self.assertAlmostEqual(weighted_bands(clean, clean * [1.1, 1.9, 0])[0], 20)
        # Hiss in a band that the original leaves empty.
        found = weighted_bands(np.array([[0.0001, 0.5]]), np.array([[0.00015, 0.5]]))[0]
        self.assertLess(found, 35)

    def test_hears_a_tone_above_the_threshold_alone(self):
        for rate in RATES:
            sound = sine(rate, 340, 0.5)
            unheard = fw_snr_seg(sound, sound + sine(rate, 2500, 0.8e-4), rate)
            self.assertAlmostEqual(unheard, 35, places=1)
            heard = fw_snr_seg(sound, sound + sine(rate, 2500, 10e-4), rate)
            self.assertLess(heard, 33)

    def test_hears_up_to_half_the_sampling_frequency(self):
        for rate in RATES:
            sound = sine(rate, 340, 0.5)
            whistle = sine(rate, 0.48 * rate, 0.01)
            self.assertLess(fw_snr_seg(sound, sound + whistle, rate), 33)


if __name__ == "__main__":
    unittest.main()

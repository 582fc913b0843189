"""Calls of kestrolin_add_sounds that make no library: the languages of the project, the call, and what
the message says, in which HERE is the folder of the project."""

from __future__ import annotations

FILES = "FILES ready.wav"


def _call(arguments: str) -> str:
    return f"kestrolin_add_sounds({arguments})\n"


MISTAKES = [
    ("C", _call(""), 'Function invoked with incorrect arguments for function named: kestrolin_add_sounds'),
    ("C", _call("sounds"), "kestrolin_add_sounds(sounds): no FILES are given."),
    ("C", _call("sounds FILES"), "kestrolin_add_sounds(sounds): FILES has no value."),
    ("C", _call("ready.wav"), "kestrolin_add_sounds(ready.wav): no FILES are given."),
    ("C", _call("my/sounds FILES ready.wav"), "kestrolin_add_sounds(my/sounds): the name of a library comes first."),
    ("C", _call("FILES ready.wav"), 'kestrolin_add_sounds(FILES): "ready.wav" belongs to no option.'),
    ("C", _call(f"sounds ADPCM {FILES}"), 'kestrolin_add_sounds(sounds): "ADPCM" belongs to no option.'),
    ("C", _call(f"sounds ENCODER ADPCM {FILES}"),
     'kestrolin_add_sounds(sounds): ENCODER is "ADPCM" and has to be one of speex, adpcm, pcm, wav.'),
    ("C", _call(f"sounds DAC 11 {FILES}"), 'DAC is "11" and has to be one of 8, 10, 12, 16.'),
    ("C", _call(f"sounds LANGUAGE Python {FILES}"), 'LANGUAGE is "Python" and has to be one of C, C++.'),
    ("C", _call(f"sounds QUALITY 11 {FILES}"),
     'QUALITY is "11" and has to be one of 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10.'),
    ("C", _call(f"sounds COMPLEXITY high {FILES}"), 'COMPLEXITY is "high" and has to be one of 0, 1,'),
    ("C", _call(f"sounds BITRATE best {FILES}"),
     'BITRATE is "best" and has to be one of fixed, variable, average.'),
    ("C", _call(f"sounds MAX_BITRATE 8k {FILES}"), 'MAX_BITRATE is "8k" and has to be a number.'),
    ("C", _call(f"sounds {FILES} DAC"), "DAC has no value."),
    ("C", _call(f"sounds DAC {FILES}"), "DAC has no value."),
    ("C CXX", _call(f"sounds LANGUAGE C++ {FILES}"), "LANGUAGE C++ needs the name of a CLASS."),
    ("C", _call("sounds FILES ready.wav gone.wav"), "there is no file HERE/gone.wav."),
    ("C", _call("sounds FILES ."), "there is no file HERE."),
    ("C", _call(f"sounds SETTINGS gone {FILES}"), "there is no file HERE/gone."),
    ("C", _call(f"sounds {FILES}") * 2, "there is a target of this name already."),
    ("CXX", _call(f"sounds LANGUAGE C++ CLASS Sounds {FILES}"),
     "the readers are C, so that the project has to name C among its languages."),
    ("C", _call(f"sounds LANGUAGE C++ CLASS Sounds {FILES}"),
     "LANGUAGE C++ needs a project that names CXX among its languages."),
]

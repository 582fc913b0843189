// The encoders that the window offers.
#pragma once

// The rows of its choice, and the values that its configuration file keeps.
enum EncoderSoort : int { EncoderSpeex = 0, EncoderADPCM = 1, EncoderPCM = 2 };

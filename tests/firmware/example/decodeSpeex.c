/* Decodes a Speex array from standard input to samples on standard output, with the library that is
 * installed, and without any code of the readers or of the example:
 *
 *     decodeSpeex BAND <array >samples     BAND: 0, 1 or 2
 */
#include <speex/speex.h>
#include <stdio.h>
#include <stdlib.h>

int main(int count, char** words) {
  enum { HEADER = 4, FRAME = 640, LONGEST = 255 };
  if (count != 2) {
    return 2;
  }
  char frame[LONGEST];
  spx_int16_t samples[FRAME];
  int length = 0;
  int size = 0;
  int enhancement = 1;
  void* decoder = speex_decoder_init(speex_lib_get_mode((int)strtol(words[1], NULL, 10)));
  SpeexBits bits;
  speex_bits_init(&bits);
  speex_decoder_ctl(decoder, SPEEX_SET_ENH, &enhancement);
  speex_decoder_ctl(decoder, SPEEX_GET_FRAME_SIZE, &length);
  for (int byte = 0; byte < HEADER; ++byte) {
    getchar();
  }
  while ((size = getchar()) != EOF) {
    if (fread(frame, 1, (size_t)size, stdin) != (size_t)size) {
      return 1;
    }
    speex_bits_read_from(&bits, frame, size);
    /* Without bits the library makes the frame up. */
    if (speex_decode_int(decoder, size == 0 ? NULL : &bits, samples) != 0) {
      return 1;
    }
    fwrite(samples, sizeof samples[0], (size_t)length, stdout);
  }
  speex_bits_destroy(&bits);
  speex_decoder_destroy(decoder);
  return 0;
}

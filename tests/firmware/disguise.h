/* The header that KESTROLIN_CONFIG names in the test of it: arrays lie in a memory whose plain
 * bytes mean something else, and this function alone tells what an address holds. */
#ifndef DISGUISE_H
#define DISGUISE_H

#ifdef __cplusplus
extern "C" {
#endif

unsigned char disguised_byte(const unsigned char* address);

#ifdef __cplusplus
}
#endif

#define KESTROLIN_READ_BYTE(address) disguised_byte(address)
#define KESTROLIN_FLASH

#endif

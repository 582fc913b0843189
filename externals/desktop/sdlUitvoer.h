// A sound device, opened through SDL for one sound.
#pragma once

#include <SDL.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

// Samples as they come: interleaved, low byte first.
struct GeluidVorm {
  int rate;  // Hz
  int kanalen;
  SDL_AudioFormat soort;
};

class SdlUitvoer {
 public:
  // Opens the system's default device, which waits for samples. The mixers of the desktop show the
  // sound under `naam`, in UTF-8. Null where there is no device or it does not take this form;
  // `fout` then tells why.
  static std::unique_ptr<SdlUitvoer> open(GeluidVorm const& vorm, std::string const& naam,
                                          std::string& fout);
  // Ends the sound, whatever is left of it, and closes the device.
  ~SdlUitvoer();
  SdlUitvoer(SdlUitvoer const&) = delete;
  SdlUitvoer& operator=(SdlUitvoer const&) = delete;
  SdlUitvoer(SdlUitvoer&&) = delete;
  SdlUitvoer& operator=(SdlUitvoer&&) = delete;

  // Appends samples, of which it keeps a copy. False where there is no memory for that.
  bool voegToe(void const* samples, std::size_t bytes);
  // Appends so much silence that whatever was appended before has been heard when the device takes
  // the last of it.
  bool voegNaklankToe();
  void start();
  // The bytes that the device has not taken yet.
  std::size_t wachtend() const;
  // Returns when the device has taken them all, or `isGestopt` says so. A device that takes nothing
  // more, as one that was pulled out may, is not waited for.
  void wachtOpEinde(std::function<bool()> const& isGestopt) const;
  std::size_t bytesPerSeconde() const;

 private:
  // SDL's audio, for as long as a device wants it. Started anew for each sound, it meets the sound
  // servers and devices of that moment.
  class Bibliotheek {
   public:
    explicit Bibliotheek(std::string const& naam);
    ~Bibliotheek();
    Bibliotheek(Bibliotheek const&) = delete;
    Bibliotheek& operator=(Bibliotheek const&) = delete;
    Bibliotheek(Bibliotheek&&) = delete;
    Bibliotheek& operator=(Bibliotheek&&) = delete;

    bool isGestart() const { return gestart; }

   private:
    bool gestart;
  };

  SdlUitvoer(GeluidVorm const& vorm, std::string const& naam);

  Bibliotheek bibliotheek;
  SDL_AudioSpec spec{};
  SDL_AudioDeviceID toestel = 0;
};

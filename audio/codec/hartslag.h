// A sign of life during long work. Speex takes seconds for each minute of a recording. Whoever
// shows the progress of such work wants to paint meanwhile. The codecs know no window: they call
// klop(), and what listens is a Hartslag.
#pragma once

// Listens from its making to its end, in the place of one made before it, which listens again
// afterwards.
class Hartslag {
 public:
  Hartslag();
  virtual ~Hartslag();

  Hartslag(Hartslag const&) = delete;
  Hartslag& operator=(Hartslag const&) = delete;
  Hartslag(Hartslag&&) = delete;
  Hartslag& operator=(Hartslag&&) = delete;

  // Called in the middle of the work, thousands of times a second. It must change nothing that a
  // run reads.
  virtual void bijKlop() = 0;

 private:
  Hartslag* vorige;
};

// Every loop over a whole recording or a whole text calls this. Does nothing while nobody listens.
void klop();

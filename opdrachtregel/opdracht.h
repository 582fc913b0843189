// A command of kestrolin-cli.
#pragma once

namespace CLI {
class App;
}

// The exit status.
enum Uitslag : int {
  gelukt = 0,
  mislukt = 1,         // the reasons stand on standard error, and no file was touched
  verkeerdGebruik = 2  // the command line is no command
};

// A derived class adds itself to the program with its options, whose values become its fields.
class Opdracht {
 public:
  virtual ~Opdracht() = default;

  Opdracht(Opdracht const&) = delete;
  Opdracht& operator=(Opdracht const&) = delete;
  Opdracht(Opdracht&&) = delete;
  Opdracht& operator=(Opdracht&&) = delete;

  // Whether the command line asks for this command.
  bool isGevraagd() const;
  // The command and its options, for what has to be said of them.
  CLI::App const& geefApp() const { return *app; }
  // Carries it out, when the fields hold the options. The toolkit is there, and its errors go to
  // standard error.
  virtual Uitslag voerUit() = 0;

 protected:
  // `app` belongs to the program, and outlives the command.
  explicit Opdracht(CLI::App* eigenApp) : app(eigenApp) {}

  CLI::App* app;
};

#pragma once
// Every interaction with the world, in one bundle that tests fill with doubles.

namespace tessera {

class Dialogs;
class Clock;
class Random;
class Sound;
class Printer;

struct Services {
    Dialogs& dialogs;
    Clock& clock;
    Random& random;
    Sound& sound;
    Printer& printer;
};

} // namespace tessera

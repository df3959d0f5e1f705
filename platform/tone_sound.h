#pragma once
// A generated sine tone on the default audio output; silent where there is none. Built as a
// module of its own, which the program loads at the first tone.

#include "platform/sound.h"

#include <QBuffer>
#include <QByteArray>

#include <memory>

class QAudioSink;

namespace tessera {

class ToneSound final : public Sound {
public:
    ToneSound();
    ~ToneSound() override;
    Q_DISABLE_COPY_MOVE(ToneSound)

    // Starts the tone and returns at once; a new tone replaces one still playing.
    void tone(int hertz, int milliseconds) override;

private:
    bool openOutput();

    bool m_triedOutput = false;
    std::unique_ptr<QAudioSink> m_sink;
    QByteArray m_samples;
    QBuffer m_buffer;
};

// Mono 16-bit samples of a sine wave, faded in and out so that it does not click.
QByteArray SineSamples(int hertz, int milliseconds, int sampleRate);

} // namespace tessera

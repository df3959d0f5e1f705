#include "platform/tone_sound.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QMediaDevices>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace tessera {

namespace {

constexpr int SampleRate = 22050;
constexpr double Amplitude = 0.3 * 32767;
constexpr int FadeSamples = SampleRate / 200; // 5 milliseconds

QAudioFormat toneFormat() {
    QAudioFormat format;
    format.setSampleRate(SampleRate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

} // namespace

QByteArray SineSamples(int hertz, int milliseconds, int sampleRate) {
    const int count = std::max(0, static_cast<int>(int64_t{milliseconds} * sampleRate / 1000));
    QByteArray bytes(qsizetype{count} * 2, Qt::Uninitialized);
    const int fade = std::min(FadeSamples, count / 2);
    for (qsizetype i = 0; i < count; ++i) {
        double envelope = 1.0;
        if (fade > 0)
            envelope = std::min({1.0, double(i) / fade, double(count - 1 - i) / fade});
        const double phase = 2.0 * std::numbers::pi * hertz * i / sampleRate;
        const auto sample =
            static_cast<int16_t>(std::lround(Amplitude * envelope * std::sin(phase)));
        bytes[2 * i] = static_cast<char>(sample & 0xff);
        bytes[2 * i + 1] = static_cast<char>((sample >> 8) & 0xff);
    }
    return bytes;
}

ToneSound::ToneSound() = default;

ToneSound::~ToneSound() {
    if (m_sink)
        m_sink->stop();
}

bool ToneSound::openOutput() {
    if (!m_triedOutput) {
        m_triedOutput = true;
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (!device.isNull() && device.isFormatSupported(toneFormat()))
            m_sink = std::make_unique<QAudioSink>(device, toneFormat());
    }
    return m_sink != nullptr;
}

void ToneSound::tone(int hertz, int milliseconds) {
    if (hertz <= 0 || milliseconds <= 0 || !openOutput())
        return;
    m_sink->stop();
    m_buffer.close();
    m_samples = SineSamples(hertz, milliseconds, SampleRate);
    m_buffer.setData(m_samples);
    if (m_buffer.open(QIODevice::ReadOnly))
        m_sink->start(&m_buffer);
}

} // namespace tessera

// What the program calls once it has loaded this module.
extern "C" Q_DECL_EXPORT tessera::Sound* TesseraCreateToneSound() {
    return new tessera::ToneSound;
}

#include "app/deferred_sound.h"

#include <QCoreApplication>
#include <QDir>

namespace tessera {

namespace {

using CreateSound = Sound* (*)();

// Beside the program first, then where the build put it.
QStringList moduleCandidates() {
    return {
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("libtessera_tone.so")),
        QStringLiteral(TESSERA_TONE_MODULE)};
}

} // namespace

bool DeferredSound::load() {
    if (!m_tried) {
        m_tried = true;
        for (const QString& candidate : moduleCandidates()) {
            m_module.setFileName(candidate);
            const auto create =
                reinterpret_cast<CreateSound>(m_module.resolve("TesseraCreateToneSound"));
            if (create != nullptr) {
                m_sound.reset(create());
                break;
            }
        }
    }
    return m_sound != nullptr;
}

void DeferredSound::tone(int hertz, int milliseconds) {
    if (load())
        m_sound->tone(hertz, milliseconds);
}

} // namespace tessera

#include "pages/sounds/soundoutput.h"

#include <QSound>

namespace {

class QSoundOutput : public SoundOutput
{
public:
    explicit QSoundOutput(const QString &path)
        : m_sound(path)
    {}
    ~QSoundOutput() override { m_sound.stop(); }
    void play() override { m_sound.play(); }
    void stop() override { m_sound.stop(); }

private:
    QSound m_sound;
};

} // namespace

/// What createQSound() asks the module for. The caller owns the result.
extern "C" Q_DECL_EXPORT SoundOutput *createQSoundOutput(const QString &path)
{
    return new QSoundOutput(path);
}

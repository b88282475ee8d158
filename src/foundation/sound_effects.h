// The program's short sounds.
#ifndef VELLUMARK_FOUNDATION_SOUND_EFFECTS_H_
#define VELLUMARK_FOUNDATION_SOUND_EFFECTS_H_

namespace vellumark {

struct Program;

// The sounds that are played, by their place in the table of sound files.
enum class SoundEffect {
  kNotice = 1,    // s2.wav: the end of a scan, a notice
  kRefusal = 4,   // s5.wav: before a refusal or an error message
  kFinished = 5,  // s6.wav: the start of a scan, a finished operation
  kOpening = 6,   // s7.wav: the program or a dialog opens, a question
};

// Plays a sound when sound effects are on, without waiting for its end.
void PlaySoundEffect(Program& program, SoundEffect sound);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_SOUND_EFFECTS_H_

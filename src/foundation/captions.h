// Gives the windows their captions.
#ifndef VELLUMARK_FOUNDATION_CAPTIONS_H_
#define VELLUMARK_FOUNDATION_CAPTIONS_H_

namespace vellumark {

class Windows;

// Sets the captions of all nine windows, one window after the other. Runs once, first of all.
void LoadCaptions(Windows& windows);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_CAPTIONS_H_

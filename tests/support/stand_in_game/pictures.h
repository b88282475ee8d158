// What the stand-in shows when its screen is taken.
#ifndef VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_PICTURES_H_
#define VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_PICTURES_H_

#include <string>

namespace vellumark::stand_in {

// A BMP file of 640 x 480 pixels, 24 bits each: red above on the left, green above on the right,
// blue below on the left, the last quarter white, so that neither turned sides nor swapped colours
// pass unnoticed.
std::string PictureAsBmp();

// The bytes before the picture's own header in a BMP file.
inline constexpr int kBmpFileHeaderSize = 14;

}  // namespace vellumark::stand_in

#endif  // VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_PICTURES_H_

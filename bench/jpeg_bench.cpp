// Turning a 4K screen-shot into a JPEG file, against libjpeg's bare encoding of the same pixels.
#include <QImage>
#include <cstdio>
// libjpeg's header needs stdio's types before it.
#include <jpeglib.h>

#include <cstdlib>
#include <optional>
#include <string>

#include "bench_run.h"
#include "desktop/pictures.h"
#include "measurement.h"
#include "platform/qt/picture_reading.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;

constexpr double kLeastSignalToNoise = 35;  // decibels

// The size of the file.
std::size_t EncodeBarely(const QImage& picture) {
  jpeg_compress_struct encoder = {};
  jpeg_error_mgr errors = {};
  encoder.err = jpeg_std_error(&errors);
  jpeg_create_compress(&encoder);
  unsigned char* file = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&encoder, &file, &size);

  encoder.image_width = static_cast<JDIMENSION>(picture.width());
  encoder.image_height = static_cast<JDIMENSION>(picture.height());
  encoder.input_components = 4;
  encoder.in_color_space = JCS_EXT_BGRX;  // the order in which the picture's pixels lie in memory
  jpeg_set_defaults(&encoder);
  jpeg_set_quality(&encoder, vellumark::kJpegQuality, TRUE);
  jpeg_start_compress(&encoder, TRUE);
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = const_cast<JSAMPROW>(picture.constScanLine(y));
    jpeg_write_scanlines(&encoder, &line, 1);
  }
  jpeg_finish_compress(&encoder);
  jpeg_destroy_compress(&encoder);
  std::free(file);
  return size;
}

// The pictures are of the same quality only when their files are about as long.
void RequireLikeness(std::size_t ours, std::size_t baseline) {
  const double ratio = static_cast<double>(ours) / static_cast<double>(baseline);
  Require(ratio > 0.95 && ratio < 1.05, "The two have not done the same work.");
}

double TimeOurs(const QImage& picture, std::size_t baseline_size) {
  const double begin = Now();
  const std::optional<std::string> file = vellumark::EncodeJpeg(picture);
  const double end = Now();
  Require(file.has_value(), "The picture has not been encoded.");
  RequireLikeness(file->size(), baseline_size);
  return end - begin;
}

double TimeBare(const QImage& picture, std::size_t& size) {
  const double begin = Now();
  size = EncodeBarely(picture);
  return Now() - begin;
}

void RequireQuality(const QImage& picture) {
  const std::optional<std::string> file = vellumark::EncodeJpeg(picture);
  Require(file.has_value(), "The picture has not been encoded.");
  const QImage decoded = QImage::fromData(QByteArray::fromStdString(*file), "JPG");
  const double ratio = vellumark::testing::SignalToNoise(picture, decoded);
  std::fprintf(stderr, "jpeg: %.1f dB, %zu bytes\n", ratio, file->size());
  Require(ratio >= kLeastSignalToNoise, "The picture has lost too much.");
}

}  // namespace

int main() {
  const QImage picture = vellumark::testing::NoisyScene({3840, 2160});
  RequireQuality(picture);

  constexpr double kLimit = 1.5;
  std::size_t size = 0;
  const auto baseline = [&] { return TimeBare(picture, size); };
  PrintRatio("jpeg / libjpeg", MedianOfFive(baseline, [&] { return TimeOurs(picture, size); }),
             kLimit);
}

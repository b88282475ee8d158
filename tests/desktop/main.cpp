// Runs the tests on the display at hand, or plays the other program of one of them.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include "desktop/offer_content.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 4 && arguments[1] == vellumark::testing::kOfferOption) {
    return vellumark::testing::OfferContent(arguments[2], arguments[3]);
  }
  return RUN_ALL_TESTS();
}

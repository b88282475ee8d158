// The part of another program that has put something on the clipboard.
#ifndef VELLUMARK_TESTS_DESKTOP_OFFER_CONTENT_H_
#define VELLUMARK_TESTS_DESKTOP_OFFER_CONTENT_H_

#include <QString>

namespace vellumark::testing {

inline const QString kOfferOption = QStringLiteral("--offer");

// Owns the clipboard with the bytes of `file` in one format, until the standard input ends. Writes
// a line when it does, and one for each time that it is asked for the bytes. The exit code.
int OfferContent(const QString& format, const QString& file);

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_DESKTOP_OFFER_CONTENT_H_

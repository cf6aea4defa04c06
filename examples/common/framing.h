#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

/// How documents follow each other on a socket: each ends with a NUL byte, which XML never contains.

/// \a document as it goes over the socket.
QByteArray framed(const QByteArray& document);

/// A document as it came over the socket.
struct Frame {
    QByteArray document;
    bool tooLong = false; ///< it was longer than is accepted, and was thrown away
};

/// Cuts the bytes that come over a socket into documents.
///
/// Never holds more than one document of the greatest length. Each byte is looked at and copied once,
/// however small the pieces in which a document comes.
class Framing {
public:
    static constexpr int maxLength = 16 * 1024 * 1024;

    /// Takes in \a bytes and returns the documents that they complete.
    QVector<Frame> take(const QByteArray& bytes);

private:
    Frame m_frame;
};

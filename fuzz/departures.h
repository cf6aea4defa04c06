#pragma once

#include "support/samples.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// \file
/// Where the protocol departs from what one would expect of any element, so that the checks tell its odd rules from
/// faults of ours. Every rule names what it looks for, and nothing else is let through.

namespace Fuzz {

/// Whether every reading of the class ends in an error.
bool isNeverRead(const Samples::ElementClass& elementClass);

/// Whether reading the class under \a tag may end at an inner end tag: one that the element reads itself.
bool mayEndInside(const Samples::ElementClass& elementClass, const QString& tag);

/// Whether reset() leaves something, so that the element is not like a new one.
bool isLeftByReset(const Samples::ElementClass& elementClass);

/// Whether \a element, which was read without an error and now writes \a written, may be invalid without a problem.
bool mayBeInvalidInSilence(const ArvXml::IXmlElement& element, const QByteArray& written);

/// Whether the library's reader must refuse \a written, which the library wrote of \a element under \a tag.
bool mustBeRefused(const ArvXml::IXmlElement& element, const QString& tag, const QByteArray& written);

/// Whether \a error is one that the protocol's rules give for \a written, which the library wrote of what it had read.
bool isKnownRefusal(const QByteArray& written, const QString& error);

/// Whether two documents say the same, the second being what was read from the first.
bool isSameContent(const QByteArray& written, const QByteArray& again);

} // namespace Fuzz

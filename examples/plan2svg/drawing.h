#pragma once

#include "plan2svg/features.h"

#include <QtCore/QByteArray>

/// A picture of \a features as an SVG document: a map with a grid of degrees, every feature with its
/// name, a scale, and a legend of the kinds that occur. There must be at least one feature.
QByteArray drawingOf(const QVector<Feature>& features, const QString& title);

#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace ArvXml {
class XmlArvBtType;
class XmlCmdRoot;
} // namespace ArvXml

/// What can be seen on a map, areas first: the order of drawing and of the legend.
enum class FeatureKind {
    AreaOfInterest,
    DeploymentArea,
    ResultArea,
    Station,
    Receiver,
    DirectionFinder,
    Emitter,
};

/// A thing to be drawn.
struct Feature {
    FeatureKind kind;
    QString name;
    /// Longitude and latitude in degrees: the corners of an area, or the one position of a site.
    QVector<QPointF> points;

    bool isArea() const { return kind <= FeatureKind::ResultArea; }
};

/// What a document holds for a map.
struct Features {
    QVector<Feature> drawable;
    QStringList leftOut; ///< what lies at no place on earth, each with its name
};

/// The objects that a command document creates. What it deletes is not followed.
Features featuresOf(const ArvXml::XmlCmdRoot& commands);
/// The objects that a snapshot request wants to be shown.
Features featuresOf(const ArvXml::XmlArvBtType& request);

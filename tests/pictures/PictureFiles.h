// The checked-in pictures, for the tests of this folder.
#pragma once

#include <QImage>
#include <QString>
#include <string>
#include <string_view>

#include "bundle/resources/pictures/Geometry.h"

namespace cutline::pictures {

// Where a picture is kept.
QString pathOf(std::string_view name);

// The picture over a transparent ground, `scale` pixels a point. Null if it cannot be read.
QImage imageOf(std::string_view name, double scale);

// As imageOf, over a ground of one colour.
QImage imageOn(std::string_view name, double scale, const QColor& ground);

// The share of pixels, from 0 to 1, that differ clearly between two images of the same size.
double differenceOf(const QImage& one, const QImage& other);

// The name of the picture that shows the same with mirrored text; empty if there is none.
std::string mirroredNameOf(std::string_view name);

}  // namespace cutline::pictures

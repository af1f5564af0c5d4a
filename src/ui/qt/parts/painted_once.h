// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps what is painted in many places, such as a ball in every line, as a picture.
#pragma once

#include <QRectF>
#include <array>
#include <cstdint>
#include <functional>

class QPainter;

namespace tallywick {

/// All that the looks depend on but for the place, in any numbers.
using Looks = std::array<std::uint32_t, 8>;

/// What `paint` paints into an area of that size. It is called where nothing has been painted yet that looks
/// so.
void paintOnce(QPainter& painter, const QRectF& area, const Looks& looks,
               const std::function<void(QPainter& painter, const QRectF& area)>& paint);

}  // namespace tallywick

// How well two colours can be told apart: 1 for the same, 21 for black and white (WCAG 2).
#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace tarn::test {

inline double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

inline double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

// The colour of most dots.
inline QColor groundOf(const QImage& image) {
    std::map<QRgb, int> dots;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++dots[image.pixel(x, y)];
        }
    }
    return QColor::fromRgb(
        std::ranges::max_element(dots, {}, &std::pair<const QRgb, int>::second)->first);
}

// Between the ground and the dot that stands out most.
inline double contrastIn(const QImage& image) {
    const QColor ground = groundOf(image);
    double most = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            most = std::max(most, contrast(ground, image.pixelColor(x, y)));
        }
    }
    return most;
}

// Between the texts of a palette and what they stand on, at worst.
inline double worstTextContrast(const QPalette& palette) {
    struct Pair {
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
    };
    constexpr std::array pairs{Pair{QPalette::WindowText, QPalette::Window},
                               Pair{QPalette::Text, QPalette::Base},
                               Pair{QPalette::Text, QPalette::AlternateBase},
                               Pair{QPalette::ButtonText, QPalette::Button},
                               Pair{QPalette::HighlightedText, QPalette::Highlight},
                               Pair{QPalette::PlaceholderText, QPalette::Base},
                               Pair{QPalette::ToolTipText, QPalette::ToolTipBase},
                               Pair{QPalette::Link, QPalette::Window}};
    double worst = 21;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const Pair& pair : pairs) {
            QColor ground = palette.color(group, pair.ground);
            if (ground.alpha() == 0) {
                ground = palette.color(group, QPalette::Window);
            }
            worst = std::min(worst, contrast(palette.color(group, pair.text), ground));
        }
    }
    return worst;
}

}  // namespace tarn::test

// The small figures that recur in the fluid power tables: arrow, solid head, dashed pilot line,
// solenoid, spring, flow paths of a valve. Everything stands on ISO 1219-1's module, here 0.125
// inch: a valve position is 4 by 4 modules, its ports 1 module from the corners.
#pragma once

#include <array>
#include <cstddef>

#include "symbols/Symbol.h"

namespace ladrix::fluidpower {

constexpr Primitive moved(Primitive p, Single a, Single b) {
    p.a1 += a;
    p.b1 += b;
    p.a2 += a;
    p.b2 += b;
    return p;
}

template <std::size_t N>
constexpr std::array<Primitive, N> moved(std::array<Primitive, N> part, Single a, Single b) {
    for (Primitive& p : part)
        p = moved(p, a, b);
    return part;
}

// For parts of straight lines: an arc's angles are left as they are.
template <std::size_t N>
constexpr std::array<Primitive, N> mirroredLeftRight(std::array<Primitive, N> part) {
    for (Primitive& p : part) {
        p.a1 = -p.a1;
        p.a2 = -p.a2;
    }
    return part;
}

template <std::size_t... N>
constexpr auto joined(const std::array<Primitive, N>&... parts) {
    std::array<Primitive, (N + ...)> all{};
    std::size_t next = 0;
    const auto append = [&](const auto& part) {
        for (const Primitive& p : part)
            all[next++] = p;
    };
    (append(parts), ...);
    return all;
}

constexpr double lengthOf(double a, double b) {
    const double square = a * a + b * b;
    double root = square > 1 ? square : 1;
    for (int step = 0; step < 40; ++step)
        root = (root + square / root) / 2;
    return root;
}

constexpr Single ArrowHead = 0.09375f;

// The two strokes of an open head whose tip is (a, b), for a line that comes from (fromA, fromB).
// Twice as long as half its width, as the triangle of InsertArrow is.
constexpr std::array<Primitive, 2> openHead(Single fromA, Single fromB, Single a, Single b,
                                            Single head = ArrowHead) {
    const double scale = head / lengthOf(a - fromA, b - fromB);
    const Single alongA = static_cast<Single>((a - fromA) * scale);
    const Single alongB = static_cast<Single>((b - fromB) * scale);
    return {art::Line(a, b, a - alongA - alongB / 2, b - alongB + alongA / 2),
            art::Line(a, b, a - alongA + alongB / 2, b - alongB - alongA / 2)};
}

constexpr std::array<Primitive, 3> flowArrow(Single a1, Single b1, Single a2, Single b2,
                                             Single head = ArrowHead) {
    return joined(std::array{art::Line(a1, b1, a2, b2)}, openHead(a1, b1, a2, b2, head));
}

// Outline and hatching of a solid triangle. The hatching divides an eighth of an inch into 24.
constexpr std::size_t HatchLines = 23;

// (a, b) is the middle of the base, (tipA, tipB) the tip; the base is as long as the height.
constexpr std::array<Primitive, 3 + HatchLines> solidHead(Single a, Single b, Single tipA,
                                                          Single tipB) {
    const Single halfA = (tipB - b) / 2, halfB = (tipA - a) / 2;
    std::array<Primitive, 3 + HatchLines> head{};
    head[0] = art::Line(a - halfA, b - halfB, tipA, tipB);
    head[1] = art::Line(tipA, tipB, a + halfA, b + halfB);
    head[2] = art::Line(a - halfA, b - halfB, a + halfA, b + halfB);
    for (std::size_t i = 1; i <= HatchLines; ++i) {
        const Single t = static_cast<Single>(i) / static_cast<Single>(HatchLines + 1);
        const Single midA = a + (tipA - a) * t, midB = b + (tipB - b) * t;
        head[2 + i] = art::Line(midA - halfA * (1 - t), midB - halfB * (1 - t),
                                midA + halfA * (1 - t), midB + halfB * (1 - t));
    }
    return head;
}

// `Dashes` dashes and the gaps between them, all of one length; a dash at either end.
template <std::size_t Dashes>
constexpr std::array<Primitive, Dashes> dashed(Single a1, Single b1, Single a2, Single b2) {
    const Single stepA = (a2 - a1) / (2 * Dashes - 1), stepB = (b2 - b1) / (2 * Dashes - 1);
    std::array<Primitive, Dashes> line{};
    for (std::size_t i = 0; i < Dashes; ++i) {
        const Single at = static_cast<Single>(2 * i);
        line[i] = art::Line(a1 + stepA * at, b1 + stepB * at, a1 + stepA * (at + 1),
                            b1 + stepB * (at + 1));
    }
    return line;
}

// Open towards the valve, whose edge is the line a = 0.
inline constexpr std::array SolenoidAtLeft = {
    art::Line(-0.25f, -0.25f, 0, -0.25f), art::Line(-0.25f, -0.25f, -0.25f, 0),
    art::Line(-0.25f, 0, 0, 0), art::Line(-0.0625f, -0.25f, -0.1875f, 0)};

// Of the same six strokes as in a cylinder; centred on b = 0, pressing on the edge a = 0.
inline constexpr std::array SpringAtLeft = {art::Line(0, 0.09375f, -0.0625f, -0.09375f),
                                            art::Line(-0.0625f, -0.09375f, -0.125f, 0.09375f),
                                            art::Line(-0.125f, 0.09375f, -0.1875f, -0.09375f),
                                            art::Line(-0.1875f, -0.09375f, -0.25f, 0.09375f),
                                            art::Line(-0.25f, 0.09375f, -0.3125f, -0.09375f),
                                            art::Line(-0.3125f, -0.09375f, -0.375f, 0.09375f)};

// Flow paths of a four-way valve in the square (0, 0)-(0.5, 0.5): A and B above, P and T below.
inline constexpr auto StraightPaths =
    joined(flowArrow(0.125f, 0.5f, 0.125f, 0), flowArrow(0.375f, 0, 0.375f, 0.5f));
inline constexpr auto CrossedPaths =
    joined(flowArrow(0.125f, 0.5f, 0.375f, 0), flowArrow(0.125f, 0, 0.375f, 0.5f));

}  // namespace ladrix::fluidpower

#include "SymbolText.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>

namespace ladrix {

namespace {

struct Figure {
    Single value;
    bool inches;
};

// One primitive, from a word of its kind and its figures.
Primitive primitiveOf(char kind, const std::vector<Figure>& figures) {
    const bool round = kind == 'C' || kind == 'A';
    const std::map<char, PrimitiveKind> kinds = {{'L', PrimitiveKind::Line},
                                                 {'B', PrimitiveKind::Box},
                                                 {'F', PrimitiveKind::FilledBox},
                                                 {'C', PrimitiveKind::Circle},
                                                 {'A', PrimitiveKind::Arc}};
    Primitive made{kinds.at(kind)};
    const std::vector<Single Primitive::*> members =
        round ? std::vector{&Primitive::a1, &Primitive::b1, &Primitive::r, &Primitive::start,
                            &Primitive::end}
              : std::vector{&Primitive::a1, &Primitive::b1, &Primitive::a2, &Primitive::b2};
    const int bits[] = {AbsA1, AbsB1, round ? AbsR : AbsA2, AbsB2};
    for (std::size_t i = 0; i < figures.size(); ++i) {
        made.*members.at(i) = figures[i].value;
        if (figures[i].inches) made.absolute = static_cast<std::uint8_t>(made.absolute | bits[i]);
    }
    return made;
}

bool between(double value, double end, double other) {
    return value > std::min(end, other) - 1e-5 && value < std::max(end, other) + 1e-5;
}

bool onArc(const Primitive& arc, Single a, Single b) {
    const double angle = std::atan2(arc.b1 - b, a - arc.a1) * 180 / Pi;
    return std::fmod(angle - arc.start + 720, 360) <= std::fmod(arc.end - arc.start + 720, 360);
}

}  // namespace

std::vector<Symbol> allSymbols() {
    std::vector<Symbol> all;
    for (const auto library :
         {modSymbolsCommon(), modSymbolsNEMA(), modSymbolsOld(), modSymbolsIEC(),
          modSymbolsElectronic(), modSymbolsOldElectronic(), modSymbolsOldHyd()})
        all.insert(all.end(), library.begin(), library.end());
    return all;
}

const Symbol& symbolNamed(std::string_view name) {
    static const std::vector<Symbol> all = allSymbols();
    for (const Symbol& symbol : all)
        if (symbol.name.substr(6) == name) return symbol;
    throw std::out_of_range("no symbol " + std::string(name));
}

std::vector<Primitive> drawing(std::string_view name) {
    const auto slash = name.find('/');
    const Symbol& symbol = symbolNamed(name.substr(0, slash));
    if (slash == name.npos) return expanded(symbol.blocks[0]);
    for (const Block& block : symbol.blocks)
        if (std::to_string(block.orientation) == name.substr(slash + 1)) return expanded(block);
    throw std::out_of_range("no drawing " + std::string(name));
}

std::vector<std::string> drawingsOf(const Symbol& symbol) {
    std::vector<std::string> names;
    for (const Block& block : symbol.blocks) {
        names.emplace_back(symbol.name.substr(6));
        if (block.orientation != AnyOrientation)
            names.back() += '/' + std::to_string(block.orientation);
    }
    return names;
}

std::vector<std::string> words(std::string_view text) {
    std::istringstream in{std::string(text)};
    return {std::istream_iterator<std::string>(in), {}};
}

std::vector<Primitive> parsed(std::string_view text) {
    std::vector<Primitive> result;
    std::string spaced(text);
    std::replace(spaced.begin(), spaced.end(), ',', ' ');
    char kind = 0;
    std::vector<Figure> figures;
    const auto finish = [&] {
        if (kind != 0 && kind != 'L') result.push_back(primitiveOf(kind, figures));
        figures.clear();
    };
    for (const std::string& word : words(spaced)) {
        if (word == "On" || word == "Off") {
            finish();
            kind = 0;
            result.push_back(word == "On" ? art::SolidFillOn : art::SolidFillOff);
        } else if (std::isalpha(static_cast<unsigned char>(word[0]))) {
            finish();
            kind = word[0];
        } else {
            figures.push_back({std::stof(word), word.back() == 'i'});
            if (kind != 'L' || figures.size() < 4) continue;
            result.push_back(primitiveOf(kind, figures));
            figures.erase(figures.begin(), figures.begin() + 2);
        }
    }
    finish();
    return result;
}

std::string textOf(const Primitive& p) {
    std::ostringstream out;
    const auto put = [&](Single value, int bit) {
        const double shown = std::round(value * 1e5) / 1e5 + 0.0;
        out << ' ' << shown << ((p.absolute & bit) != 0 && shown != 0 ? "i" : "");
    };
    switch (p.kind) {
        case PrimitiveKind::Line:
        case PrimitiveKind::Box:
        case PrimitiveKind::FilledBox:
            out << "LBF"[static_cast<int>(p.kind)];
            put(p.a1, AbsA1), put(p.b1, AbsB1), put(p.a2, AbsA2), put(p.b2, AbsB2);
            return out.str();
        case PrimitiveKind::Circle:
        case PrimitiveKind::Arc:
            out << (p.kind == PrimitiveKind::Arc ? 'A' : 'C');
            put(p.a1, AbsA1), put(p.b1, AbsB1), put(p.r, AbsR);
            if (p.kind == PrimitiveKind::Arc) out << ' ' << p.start << ' ' << p.end;
            return out.str();
        case PrimitiveKind::SolidFillOn:
            return "On";
        case PrimitiveKind::SolidFillOff:
            return "Off";
        case PrimitiveKind::FillStyleOn:
            return "style on";
        case PrimitiveKind::FillStyleOff:
            return "style off";
    }
    return {};
}

std::vector<std::string> textOf(const std::vector<Primitive>& drawing) {
    std::vector<std::string> lines;
    for (const Primitive& p : drawing)
        lines.push_back(textOf(p));
    return lines;
}

std::string undirected(const Primitive& p) {
    if (p.kind != PrimitiveKind::Line) return textOf(p);
    const auto bits = static_cast<std::uint8_t>((p.absolute & 3) << 2 | (p.absolute >> 2 & 3));
    return std::min(textOf(p), textOf(art::Line(p.a2, p.b2, p.a1, p.b1, bits)));
}

std::vector<Primitive> strokesOf(const std::vector<Primitive>& drawing) {
    std::vector<Primitive> strokes;
    for (const Primitive& p : drawing) {
        if (p.kind == PrimitiveKind::Line) strokes.push_back(p);
        if (p.kind != PrimitiveKind::Box) continue;
        strokes.insert(strokes.end(),
                       {art::Line(p.a1, p.b1, p.a2, p.b1), art::Line(p.a2, p.b1, p.a2, p.b2),
                        art::Line(p.a2, p.b2, p.a1, p.b2), art::Line(p.a1, p.b2, p.a1, p.b1)});
    }
    return strokes;
}

double lengthOf(const Primitive& stroke) {
    return std::hypot(stroke.a2 - stroke.a1, stroke.b2 - stroke.b1);
}

bool overlap(const Primitive& stroke, const Primitive& other) {
    const double length = lengthOf(stroke);
    const double alongA = (stroke.a2 - stroke.a1) / length;
    const double alongB = (stroke.b2 - stroke.b1) / length;
    const auto aside = [&](Single a, Single b) {
        return std::abs((a - stroke.a1) * alongB - (b - stroke.b1) * alongA) > 1e-3;
    };
    if (aside(other.a1, other.b1) || aside(other.a2, other.b2)) return false;
    const double from = (other.a1 - stroke.a1) * alongA + (other.b1 - stroke.b1) * alongB;
    const double to = (other.a2 - stroke.a1) * alongA + (other.b2 - stroke.b1) * alongB;
    return std::min(length, std::max(from, to)) - std::max(0.0, std::min(from, to)) > 1e-3;
}

bool meets(const std::vector<Primitive>& drawing, Single a, Single b) {
    const auto at = [&](Single x, Single y) { return std::hypot(x - a, y - b) < 1e-4; };
    return std::any_of(drawing.begin(), drawing.end(), [&](const Primitive& p) {
        const bool onCircle = std::abs(std::hypot(a - p.a1, b - p.b1) - p.r) < 1e-4;
        if (p.kind == PrimitiveKind::Line) return at(p.a1, p.b1) || at(p.a2, p.b2);
        if (p.kind == PrimitiveKind::Circle) return onCircle;
        if (p.kind == PrimitiveKind::Arc) return onCircle && onArc(p, a, b);
        if (p.kind != PrimitiveKind::Box) return false;
        const bool onSide = std::abs(a - p.a1) < 1e-5 || std::abs(a - p.a2) < 1e-5 ||
                            std::abs(b - p.b1) < 1e-5 || std::abs(b - p.b2) < 1e-5;
        return onSide && between(a, p.a1, p.a2) && between(b, p.b1, p.b2);
    });
}

}  // namespace ladrix

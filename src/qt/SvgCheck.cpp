#include "qt/SvgCheck.h"

#include <QXmlStreamReader>
#include <algorithm>

#include "qt/PictureKind.h"

namespace ladrix {

namespace {

constexpr qsizetype EmbeddedHead = 32;  // characters of base64 that tell the kind

// PNG or JPEG; any other kind could refer to files in its turn.
bool isEmbeddedPicture(QStringView value) {
    const qsizetype comma = value.indexOf(u',');
    if (!value.startsWith(u"data:image/") || comma < 0 || !value.left(comma).endsWith(u";base64"))
        return false;
    const QByteArray head =
        QByteArray::fromBase64(value.mid(comma + 1).trimmed().left(EmbeddedHead).toLatin1());
    const PictureKind kind =
        pictureKindOf({head.constData(), static_cast<std::size_t>(head.size())});
    return kind == PictureKind::Png || kind == PictureKind::Jpeg;
}

// Styles name other places by url(...) and @import.
bool leadsOut(QStringView style) {
    if (style.contains(u"@import", Qt::CaseInsensitive)) return true;
    constexpr QStringView Reference = u"url(";
    for (qsizetype at = style.indexOf(Reference, 0, Qt::CaseInsensitive); at >= 0;
         at = style.indexOf(Reference, at + 1, Qt::CaseInsensitive)) {
        QStringView target = style.mid(at + Reference.size()).trimmed();
        if (target.startsWith(u'\'') || target.startsWith(u'"')) target = target.mid(1).trimmed();
        if (!target.startsWith(u'#')) return true;
    }
    return false;
}

class Checker {
  public:
    explicit Checker(std::string_view svg)
        : xml_(QByteArray::fromRawData(svg.data(), static_cast<qsizetype>(svg.size()))) {}

    SvgCheck run() {
        while (!xml_.atEnd() && check_.fault == SvgFault::None)
            take(xml_.readNext());
        if (check_.fault == SvgFault::None && xml_.hasError()) check_.fault = SvgFault::Broken;
        return check_;
    }

  private:
    void take(QXmlStreamReader::TokenType token) {
        switch (token) {
            case QXmlStreamReader::DTD:
                if (xml_.text().contains(u"<!ENTITY", Qt::CaseInsensitive))
                    check_.fault = SvgFault::DeclaresEntities;
                return;
            case QXmlStreamReader::ProcessingInstruction:
                if (xml_.processingInstructionTarget() == u"xml-stylesheet") refer();
                return;
            case QXmlStreamReader::StartElement:
                if (++depth_ > DeepestSvg) check_.fault = SvgFault::TooDeep;
                for (const QXmlStreamAttribute& attribute : xml_.attributes())
                    takeAttribute(attribute);
                return;
            case QXmlStreamReader::EndElement:
                --depth_;
                return;
            case QXmlStreamReader::Characters:
                if (leadsOut(xml_.text())) refer();
                return;
            default:
                return;
        }
    }

    void takeAttribute(const QXmlStreamAttribute& attribute) {
        const QStringView value = attribute.value();
        if (attribute.name() == u"href") return takeReference(value.trimmed());
        if (leadsOut(value)) refer();
        if (attribute.name() == u"font-family") addFamily(value);
        if (attribute.name() != u"style") return;
        const qsizetype at = value.indexOf(u"font-family:");
        if (at >= 0) addFamily(value.mid(at + 12).split(u';').first());
    }

    void takeReference(QStringView target) {
        if (xml_.name() == u"a" || target.startsWith(u'#')) return;
        if (xml_.name() == u"image" && isEmbeddedPicture(target)) {
            check_.embedsPictures = true;
        } else {
            refer();
        }
    }

    void addFamily(QStringView value) {
        QString family = value.split(u',').first().trimmed().toString();
        family.remove(u'\'').remove(u'"');
        std::vector<std::string>& known = check_.families;
        const std::string name = family.toStdString();
        if (known.size() < MostSvgFonts &&
            std::find(known.begin(), known.end(), name) == known.end())
            known.push_back(name);
    }

    void refer() { check_.fault = SvgFault::RefersToOthers; }

    QXmlStreamReader xml_;
    SvgCheck check_;
    int depth_ = 0;
};

}  // namespace

SvgCheck checkSvg(std::string_view svg) {
    return Checker(svg).run();
}

}  // namespace ladrix

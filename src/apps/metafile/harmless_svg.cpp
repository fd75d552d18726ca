#include "apps/metafile/harmless_svg.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>

namespace quor {

namespace {

constexpr QLatin1String svgSpace("http://www.w3.org/2000/svg");
constexpr QLatin1String linkSpace("http://www.w3.org/1999/xlink");

// All that metafiles become, but for clip paths and patterns, which the toolkit doesn't draw.
bool IsDrawn(QStringView element)
{
    static constexpr std::array<const char*, 8> names = {"svg",     "g",    "defs", "path",
                                                         "ellipse", "rect", "text", "image"};
    return std::any_of(names.begin(), names.end(), [&](const char* name) { return element == QLatin1String(name); });
}

// A bitmap in the address itself, and of these kinds: an SVG could be in there, too, and lead out again.
bool IsBitmap(QStringView address)
{
    static constexpr std::array<const char*, 2> beginnings = {
        "data:image/png;base64,iVBORw0KGgo",
        "data:image/jpg;base64,/9j/",
    };
    const bool begins = std::any_of(beginnings.begin(), beginnings.end(),
                                    [&](const char* each) { return address.startsWith(QLatin1String(each)); });
    return begins && address.indexOf(u',') == address.lastIndexOf(u',');
}

void CopyElement(const QXmlStreamReader& reader, bool isRoot, QXmlStreamWriter& writer)
{
    writer.writeStartElement(reader.name().toString());
    if (isRoot) {
        writer.writeDefaultNamespace(svgSpace);
        writer.writeNamespace(linkSpace, QStringLiteral("xlink"));
    }
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        if (attribute.namespaceUri().isEmpty() && attribute.name() != QLatin1String("href")) {
            writer.writeAttribute(attribute.name().toString(), attribute.value().toString());
        }
    }
    const QStringView address = reader.attributes().value(linkSpace, QLatin1String("href"));
    if (reader.name() == QLatin1String("image") && IsBitmap(address)) {
        writer.writeAttribute(linkSpace, QStringLiteral("href"), address.toString());
    }
}

} // namespace

QByteArray HarmlessSvg(const QByteArray& svg)
{
    QByteArray clean;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter writer(&clean);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (IsDrawn(reader.name())) {
                CopyElement(reader, clean.isEmpty(), writer);
            } else {
                reader.skipCurrentElement();
            }
        } else if (token == QXmlStreamReader::EndElement) {
            writer.writeEndElement();
        } else if (token == QXmlStreamReader::Characters) {
            writer.writeCharacters(reader.text().toString());
        }
    }
    return reader.hasError() ? QByteArray() : clean;
}

} // namespace quor

#include "FileNames.h"

#include <QFile>

std::optional<QString> toFileName(std::wstring_view name)
{
    QString text;
    text.reserve(int(name.size()));
    for (const wchar_t character : name) {
        const auto code = char32_t(character);
        if (code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
            return std::nullopt;
        // Not QString::fromWCharArray(): it drops a leading U+FEFF.
        if (QChar::requiresSurrogates(code))
            text.append(QChar(QChar::highSurrogate(code))).append(QChar(QChar::lowSurrogate(code)));
        else
            text.append(QChar(ushort(code)));
    }
    return text;
}

std::optional<QByteArray> encodeFileName(const QString &name)
{
    const QByteArray encoded = QFile::encodeName(name);
    // What the locale cannot express was replaced, and the replacement may name another file.
    if (QFile::decodeName(encoded) != name)
        return std::nullopt;
    return encoded;
}

std::optional<QByteArray> encodeFileName(const wchar_t *name)
{
    if (!name)
        return std::nullopt;
    const std::optional<QString> text = toFileName(name);
    return text ? encodeFileName(*text) : std::nullopt;
}

std::optional<QString> decodeFileName(const QByteArray &name)
{
    const QString text = QFile::decodeName(name);
    if (QFile::encodeName(text) != name)
        return std::nullopt;
    return text;
}

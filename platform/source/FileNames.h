#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>

/// @return @p name as a QString; nothing when it holds something other than Unicode code points.
std::optional<QString> toFileName(std::wstring_view name);

/// @return @p name as the file system has it; nothing when it has no such form.
std::optional<QByteArray> encodeFileName(const QString &name);
std::optional<QByteArray> encodeFileName(const wchar_t *name);

/// @return the text of a file system name; nothing when the bytes stand for no text.
std::optional<QString> decodeFileName(const QByteArray &name);

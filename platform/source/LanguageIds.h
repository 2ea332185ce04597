#pragma once

#include "ResourceImage.h"

class QLocale;

/// @return the identifier of the language in which the locale wants texts; that of American English for the
/// C locale, and 0, which stands for no language, when the language has none.
LanguageId languageId(const QLocale &locale);

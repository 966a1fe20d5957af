#pragma once

#include <QStringList>
#include <string_view>

namespace eterlab::shell {

/// What a text is searched for: small letters without accents; what is neither letter nor digit
/// parts words, but for what joins numbers: "1:1", "5/8", "2.4".
QStringList words_of(std::string_view text);

}  // namespace eterlab::shell

#include "widgets/toolkit_words.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarn {
namespace {

struct ToolkitWord {
    std::string_view context;
    std::string_view source;
    QStringView portuguese;
};

// The kinds of files in a file dialog, and its list of places.
constexpr std::array words{
    ToolkitWord{"QAbstractFileIconProvider", "Drive", u"Unidade"},
    ToolkitWord{"QAbstractFileIconProvider", "File", u"Arquivo"},
    ToolkitWord{"QAbstractFileIconProvider", "%1 File", u"Arquivo %1"},
    ToolkitWord{"QAbstractFileIconProvider", "Folder", u"Pasta"},
    ToolkitWord{"QAbstractFileIconProvider", "File Folder", u"Pasta"},
    ToolkitWord{"QAbstractFileIconProvider", "Alias", u"Atalho"},
    ToolkitWord{"QAbstractFileIconProvider", "Shortcut", u"Atalho"},
    ToolkitWord{"QAbstractFileIconProvider", "Unknown", u"Desconhecido"},
    ToolkitWord{"QSidebar", "Remove", u"Remover"},
};

}  // namespace

QString ToolkitWords::translate(const char* context, const char* source, const char* /*comment*/,
                                int /*count*/) const {
    const std::string_view place(context);
    const std::string_view text(source);
    const auto word = std::ranges::find_if(words, [&](const ToolkitWord& candidate) {
        return candidate.context == place && candidate.source == text;
    });
    return word == words.end() ? QString() : word->portuguese.toString();
}

}  // namespace tarn

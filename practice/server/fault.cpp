#include "practice/server/fault.h"

#include <array>

#include "practice/commands/command.h"

namespace tarn::practice {
namespace {

struct KindName {
    std::string_view name;
    FaultKind kind;
};

constexpr std::array kindNames = {
    KindName{"recusa", FaultKind::Refuse},
    KindName{"fecha-antes", FaultKind::CloseBefore},
    KindName{"fecha-no-meio", FaultKind::CloseWithin},
    KindName{"reset-antes", FaultKind::ResetBefore},
    KindName{"reset-no-cabecalho", FaultKind::ResetWithinHead},
    KindName{"reset-no-meio", FaultKind::ResetWithinBody},
    KindName{"404", FaultKind::NotFound},
    KindName{"500", FaultKind::ServerError},
    KindName{"206", FaultKind::Partial},
    KindName{"vazio", FaultKind::Empty},
    KindName{"html", FaultKind::Html},
    KindName{"cortado", FaultKind::CutXml},
    KindName{"sem-declaracao", FaultKind::NoDeclaration},
    KindName{"codificacao-errada", FaultKind::WrongEncoding},
    KindName{"lento", FaultKind::Slow},
    KindName{"enorme", FaultKind::Huge},
};

constexpr int partialContent = 206;
constexpr std::int64_t defaultWait = 10;     // seconds
constexpr std::int64_t longestWait = 3600;   // seconds
constexpr std::size_t tooLarge = 16U << 20;  // the desk takes no larger body

constexpr const char* html = "text/html; charset=utf-8";
constexpr const char* refusal =
    "Recusa de treino: o servidor de prática não atende a este comando. Tente mais tarde.";

std::string htmlPage(std::string_view title) {
    const std::string text(title);
    return "<html><head><title>" + text + "</title></head><body><p>" + text + "<br></body></html>";
}

Page htmlError(int status, std::string_view title) {
    Page page(htmlPage(title));
    page.contentType = html;
    page.status = status;
    return page;
}

Page unanswered(Ending ending) {
    Page page("");
    page.ending = ending;
    return page;
}

Page refusedPage(const Command& command, Encoding encoding) {
    return writeAnswer(refusalAnswer(command.shape, refusal), encoding);
}

// Behind the root, so that the answer alone would be right.
std::string wronglyEncoded(std::string body) {
    constexpr std::string_view right = "windows-1252";
    for (const std::string_view name : {right, std::string_view("WINDOWS-1252")}) {
        if (const std::size_t at = body.find(name); at != std::string::npos) {
            body.replace(at, name.size(), "utf-8");
            break;
        }
    }
    return body + "<!-- \xE7 -->";
}

std::string withoutDeclaration(const std::string& body) {
    const std::size_t end = body.find("?>");
    const std::size_t root = body.find('<', end == std::string::npos ? 0 : end);
    return body.substr(root);
}

// The page of a command that was carried out.
Page spoilt(PracticeServer& server, const Fault& fault, std::string_view rawQuery) {
    switch (fault.kind) {
        case FaultKind::NoDeclaration:
            return withoutDeclaration(server.answer(rawQuery, Encoding::Utf8));
        case FaultKind::WrongEncoding:
            return wronglyEncoded(server.answer(rawQuery, Encoding::Windows1252));
        default:
            break;
    }
    Page page(server.answer(rawQuery));
    switch (fault.kind) {
        case FaultKind::CloseWithin:
            page.ending = Ending::Within;
            break;
        case FaultKind::ResetWithinHead:
            page.ending = Ending::ResetWithinHead;
            break;
        case FaultKind::ResetWithinBody:
            page.ending = Ending::ResetWithinBody;
            break;
        case FaultKind::Partial:
            page.status = partialContent;
            break;
        case FaultKind::Empty:
            page.body.clear();
            break;
        case FaultKind::Html:
            page = htmlError(page.status, "Servidor em manutenção");
            break;
        case FaultKind::CutXml:
            page.body.resize(page.body.size() / 2);
            break;
        case FaultKind::Slow:
            page.wait = fault.wait;
            break;
        case FaultKind::Huge:
            page.blanksBehind = tooLarge;
            break;
        default:
            break;
    }
    return page;
}

std::optional<Fault> faultOf(std::string_view text) {
    const std::size_t colon = text.find(':');
    for (const KindName& known : kindNames) {
        if (known.name != text.substr(0, colon)) {
            continue;
        }
        if (known.kind != FaultKind::Slow) {
            return colon == std::string_view::npos ? std::optional(Fault{known.kind, {}})
                                                   : std::nullopt;
        }
        const std::optional<std::int64_t> seconds = colon == std::string_view::npos
                                                        ? std::optional(defaultWait)
                                                        : wholeNumber(text.substr(colon + 1));
        return seconds && *seconds <= longestWait
                   ? std::optional(Fault{known.kind, std::chrono::seconds(*seconds)})
                   : std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

std::string faultNames() {
    std::string names;
    for (const KindName& known : kindNames) {
        names += names.empty() ? "" : ", ";
        names += known.name;
        names += known.kind == FaultKind::Slow ? "[:SEGUNDOS]" : "";
    }
    return names;
}

std::optional<std::string> FaultPlan::add(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
        return "A falha \"" + std::string(text) +
               "\" não diz de que comando. Escreva --falha "
               "COMANDO=FALHA.";
    }
    const std::string_view name = text.substr(0, equals);
    if (findCommand(name) == nullptr) {
        return "O comando \"" + std::string(name) +
               "\" não existe neste servidor. Confira "
               "--falha.";
    }
    const std::string_view kind = text.substr(equals + 1);
    const std::optional<Fault> fault = faultOf(kind);
    if (!fault) {
        return "A falha \"" + std::string(kind) + "\" não existe. Use " + faultNames() + '.';
    }
    add(name, *fault);
    return std::nullopt;
}

bool FaultPlan::add(std::string_view command, const Fault& fault) {
    const Command* known = findCommand(command);
    if (known != nullptr) {
        faults_.insert_or_assign(std::string(known->name), fault);
    }
    return known != nullptr;
}

std::optional<Fault> FaultPlan::of(std::string_view command) const {
    const auto found = faults_.find(command);
    return found == faults_.end() ? std::nullopt : std::optional(found->second);
}

Page answeredPage(PracticeServer& server, const FaultPlan& plan, std::string_view rawQuery) {
    const Command* command = plan.empty() ? nullptr : findCommand(Query(rawQuery).command());
    const std::optional<Fault> fault = command ? plan.of(command->name) : std::nullopt;
    if (!fault) {
        return server.answer(rawQuery);
    }
    switch (fault->kind) {
        case FaultKind::Refuse:
            return refusedPage(*command, server.encoding());
        case FaultKind::NotFound:
            return htmlError(notFound, "Página não encontrada");
        case FaultKind::ServerError:
            return htmlError(serverError, "Erro interno do servidor");
        case FaultKind::CloseBefore:
            return unanswered(Ending::Before);
        case FaultKind::ResetBefore:
            return unanswered(Ending::ResetBefore);
        default:
            return spoilt(server, *fault, rawQuery);
    }
}

}  // namespace tarn::practice

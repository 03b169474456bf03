#include "dotmatrix/print_notice.h"

#include <utility>

namespace tarn::dotmatrix {

namespace {

std::string hexadecimal(const std::string& bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (!text.empty()) {
            text += ' ';
        }
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    return text;
}

const char* explanation(NoticeKind kind) {
    switch (kind) {
        case NoticeKind::UnknownCommand:
            return "comando desconhecido, desprezado; o que vem depois dele é impresso";
        case NoticeKind::UnknownControl:
            return "código de controle desprezado";
        case NoticeKind::RepeatedEscape:
            return "ESC repetido; vale o segundo";
        case NoticeKind::NotDrawn:
            return "comando conhecido que esta impressora virtual não desenha";
        case NoticeKind::BadParameter:
            return "parâmetro fora da faixa, comando desprezado";
        case NoticeKind::UpperControl:
            return "byte entre 80 e 9F, tomado por código de controle";
        case NoticeKind::PastRightMargin:
            return "a linha passa da largura do carro e continua na linha seguinte";
    }
    return "";
}

}  // namespace

void NoticeLog::add(Notice notice) {
    ++total_;
    if (kept_.size() < mostKept) {
        kept_.push_back(std::move(notice));
    }
}

std::string describe(const Notice& notice) {
    std::string text = "trabalho " + std::to_string(notice.job) + ", linha " +
                       std::to_string(notice.jobLine) + ", coluna " + std::to_string(notice.column);
    if (!notice.bytes.empty()) {
        text += ", bytes " + hexadecimal(notice.bytes);
    }
    return text + ": " + explanation(notice.kind);
}

}  // namespace tarn::dotmatrix

// Reading one attribute of one row, and the status of an answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "gateway/xml_document.h"

namespace tarn {

// What a read gives back: the padrao of whichever type was passed, or a text.
using Valor = std::variant<std::string, double>;

// `indice` counts the element children of `no` from 0. A padrao equal to the
// number 0 makes the read numeric: looked up by the upper-cased name, "." turned
// into ",". Any other padrao makes it a text read, looked up by the name exactly
// as given. Absent in any case of letters: the padrao as passed. Present in another
// case than the lookup's, or no such row: ErroExecucao VariavelObjeto.
Valor PegaValor(const XmlNode& no, std::size_t indice, std::string_view nome, const Valor& padrao);

// The two readings in use, as text: absent gives "" and "0".
std::string pegaTexto(const XmlNode& no, std::size_t indice, std::string_view nome);
std::string pegaNumero(const XmlNode& no, std::size_t indice, std::string_view nome);

// The names of a row's fields, found without regard to the case of letters. Made
// once for any number of readers.
class NomesLinha {
public:
    // The texts must outlive this object.
    explicit NomesLinha(std::span<const std::string_view> nomes);

    struct Nome {
        std::string_view nome;  // as PegaValor takes it
        std::string maiusculo;  // as a numeric read looks it up
    };
    std::size_t quantos() const { return nomes_.size(); }
    const Nome& operator[](std::size_t campo) const { return nomes_[campo]; }
    // Which one is called so in any case of letters.
    struct Encontro {
        int campo = -1;      // -1: none
        bool exato = false;  // spelled as `nome`
    };
    Encontro encontra(std::string_view nome) const;

private:
    std::vector<Nome> nomes_;
    std::vector<std::int16_t> tabela_;  // open addressing, a power of two long; -1: free
};

// PegaValor for many rows of the same fields: one pass over the attributes of a
// row answers for all of them. Rows that repeat the order of the names cost least.
class LeitorLinha {
public:
    explicit LeitorLinha(std::shared_ptr<const NomesLinha> nomes);
    explicit LeitorLinha(std::span<const std::string_view> nomes)
        : LeitorLinha(std::make_shared<const NomesLinha>(nomes)) {}

    // Goes to a row. VariavelObjeto for a null one. What was read of the row before
    // is no longer valid.
    void le(const XmlNode& linha);
    void le(const XmlNode& no, std::size_t indice) { le(no.child(indice)); }

    // `campo` is the place of the name in `nomes`. Results live until the next row.
    bool presente(std::size_t campo) const { return achados_[campo].vez == vez_; }
    std::string_view texto(std::size_t campo) const;
    std::string_view numero(std::size_t campo, std::string_view padrao = "0");

private:
    // First attribute of that name in any case; of this row when `vez` is the reader's.
    struct Achado {
        const void* atributo = nullptr;
        std::uint64_t vez = 0;
        bool exato = false;   // spelled as the name
        std::string trocado;  // its text with commas, when it has points
    };
    // A name as the document interns it, and the field it stands for (-1: none).
    struct Conhecido {
        const void* nome = nullptr;
        std::int16_t campo = -1;
        bool exato = false;
    };

    void comeca(const void* elemento);
    std::size_t lugarDe(const void* nome, std::size_t desde);
    Conhecido reconhece(const void* nome) const;
    std::string_view consulta(const Achado& achado, std::string_view nome) const;

    std::shared_ptr<const NomesLinha> nomes_;
    std::vector<Achado> achados_;
    std::vector<Conhecido> sequencia_;  // names of the row before, in its order
    std::uint64_t documento_ = 0;
    bool semPrefixo_ = false;  // the document's names hold prefixes that it never declares
    std::uint64_t vez_ = 0;    // rows read
    XmlNode linha_;
};

// Text of the second attribute of the document's second child; ErroExecucao
// VariavelObjeto when there is none (no declaration, one attribute only).
std::string statusOf(const XmlDocument& documento);

}  // namespace tarn

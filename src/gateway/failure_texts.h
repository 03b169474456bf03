// What the user reads when a request could not be made: one text a call site, so
// that support knows by the number which one failed.
#pragma once

#include <string_view>

namespace tarn::failure {

inline constexpr std::string_view transportTitle = "TarnEMISSAO - ERRO INESPERADO";

inline constexpr std::string_view Tarn0001 =
    "ERRO Tarn0001 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0002 =
    "ERRO Tarn0002 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0003 =
    "ERRO Tarn0003 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0004 =
    "ERRO Tarn0004 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0005 =
    "ERRO Tarn0005 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0006 =
    "ERRO Tarn0006 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0007 =
    "ERRO Tarn0007 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0008 =
    "ERRO Tarn0008 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0009 =
    "ERRO Tarn0009 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
// The same number with four blanks, as half of its call sites spell it.
inline constexpr std::string_view Tarn0009Wide =
    "ERRO    Tarn0009 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0010 =
    "ERRO Tarn0010 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0011 =
    "ERRO Tarn0011 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0012 =
    "ERRO Tarn0012 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0013 =
    "ERRO Tarn0013 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
inline constexpr std::string_view Tarn0024 =
    "Tarn0024 - Erro na pesquisa de cliente - Não foi possível obter os dados da Internet. "
    "Verifique a conexão com a Internet.";
inline constexpr std::string_view noVersion =
    "Não consegui verificar a versão do TarnEMISSAO porque não tive acesso à internet!!!";

}  // namespace tarn::failure

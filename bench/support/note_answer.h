// The answer that a note is printed from.
#pragma once

#include <string>

namespace tarn::bench {

// A note as the server writes it: every attribute of a row, used or not.
inline std::string noteOf(int items) {
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<PRINCIPAL ID=\"1\" STATUS=\"OK\">\r\n"
        "<NOTA Ent_Sai=\"S\" NatOper=\"VENDA DE MERCADORIA\" CFOP=\"5102\" RAZAO=\"COM\xC9RCIO DE "
        "PE\xC7"
        "AS S\xC3O JO\xC3O LTDA\" IC_TIP_PES=\"J\" CGC_CPF=\"12345678000195\" "
        "DT_EMS_NF=\"07/01/2009\" ENDERECO=\"RUA DAS FLORES, 100\" COMPLEMENTO=\"SALA 2\" "
        "BAIRRO=\"CENTRO\" CEP=\"1310100\" MUNICIPIO=\"S\xC3O PAULO\" FONEFAX=\"(11) 5555-0000\" "
        "UF=\"SP\" INSC_EST=\"110.042.490.114\" ENDERECO_COB=\"RUA DAS FLORES, 100\" "
        "COMPLEMENTO_COB=\"\" BAIRRO_COB=\"CENTRO\" CEP_COB=\"1310100\" MUNICIPIO_COB=\"S\xC3O "
        "PAULO\" UF_COB=\"SP\" ENDERECO_ETG=\"RUA DAS FLORES, 100\" COMPLEMENTO_ETG=\"\" "
        "BAIRRO_ETG=\"CENTRO\" CEP_ETG=\"1310100\" MUNICIPIO_ETG=\"S\xC3O PAULO\" UF_ETG=\"SP\" "
        "QTDE_PARC=\"3\" NR_DOC1=\"4567/1\" VL_PRN_DOC1=\"100.5\" DT_VNC_DOC1=\"07/02/2009\" "
        "NR_DOC2=\"4567/2\" VL_PRN_DOC2=\"200\" DT_VNC_DOC2=\"07/03/2009\" NR_DOC3=\"4567/3\" "
        "VL_PRN_DOC3=\"1300.25\" DT_VNC_DOC3=\"07/04/2009\" DC_CND_PAG=\"30/60/90\" "
        "DC_TRP=\"TRANSPORTES R\xC1PIDOS\" IC_RESP_FRT=\"1\" CD_PLC_VEI_TRP=\"ABC1234\" "
        "UF_PLACA_TRP=\"SP\" NR_CGC_CPL_TRP=\"12345678000110\" DC_LG_TRP=\"AV. BRASIL, 2000\" "
        "NM_MUN_TRP=\"CAMPINAS\" SG_UF_TRP=\"SP\" CD_ICR_EST_TRP=\"ISENTO\" QT_ESP=\"12\" "
        "PESO_BRU=\"1234.5\" PESO_LIQ=\"1200\" ID_VND_DIR=\"98765\" NR_PED_CLI=\"PC-77\" "
        "VENDEDOR=\"MARIA\" DC_OBS=\"ENTREGAR PELA MANH\xC3\" ID_EMP_TARN=\"1361\"/>\r\n"
        "<TOTAIS VALOR_BASE_ICMS=\"1600.75\" VALOR_ICMS=\"288.14\" VALOR_BAS_ICMS_RTD=\"0\" "
        "VALOR_ICMS_RTD=\"0\" VALOR_TOTAL=\"1650.75\" VALOR_TOTAL_DESC=\"50\" VALOR_FRETE=\"10\" "
        "VALOR_SEGURO=\"5.5\" VALOR_DES_ASC=\"0.25\" VALOR_TOT_IPI=\"80.04\" "
        "VALOR_TOT_NF=\"1696.54\" VL_IMPOSTO_CREDITAR=\"0\"/>\r\n"
        "<FORMULARIO QT_MAX_IT=\"32\" QT_MAX_IT_NF_SRV=\"6\"/>\r\n";
    for (int i = 0; i < items; ++i) {
        const std::string n = std::to_string(i + 1);
        xml.append("<ITEM CD_PRO=\"P").append(n);
        xml.append("\" DESCRICAO=\"PARAFUSO SEXTAVADO A\xC7O INOX ").append(n);
        xml.append(
            "\" POS_NF=\"A\" CL_FISCAL=\"84811\" GF_AGRUP=\"1\" ID_CLA_FIS=\"84811\" "
            "CFOP_ITEM=\"5102\" IC_ORI_PRO=\"0\" SIT_TRI=\"00\" IC_TP_CAD=\"P\" "
            "UNIDADE=\"CX\" QTDE=\"12.5\" VALOR_UN=\"");
        xml.append(n).append(
            ".06\" VL_DSC=\"2.5\" ICMS=\"18\" AQ_IPI=\"5\" IPI=\"5\" VL_IPI=\"62.54\" "
            "PESO=\"0.35\" DC_TXT_LEG_NF=\"TEXTO LEGAL ");
        xml.append(std::to_string(i % 200));
        xml.append("\" AQ_ISS=\"0\" VL_ISS=\"0\" VL_LIQ_IT=\"0\"/>\r\n");
    }
    return xml + "</PRINCIPAL>\r\n";
}

}  // namespace tarn::bench

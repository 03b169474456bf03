<?xml version="1.0" encoding="UTF-8"?>
<!-- A note as lines of fixed width: fields by printed column and width, as ImprimeNF_1361 has them. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="text" encoding="ISO-8859-1"/>
  <xsl:strip-space elements="*"/>
  <xsl:decimal-format name="br" decimal-separator="," grouping-separator="."/>
  <xsl:variable name="blanks" select="'                                                                                          '"/>

  <xsl:template name="left">
    <xsl:param name="text"/>
    <xsl:param name="width"/>
    <xsl:value-of select="substring(concat($text, $blanks), 1, $width)"/>
  </xsl:template>

  <xsl:template name="right">
    <xsl:param name="number"/>
    <xsl:param name="width"/>
    <xsl:variable name="text" select="format-number($number, '###.##0,00', 'br')"/>
    <xsl:value-of select="substring($blanks, 1, $width - string-length($text))"/>
    <xsl:value-of select="$text"/>
  </xsl:template>

  <xsl:template match="NOTA">
    <xsl:text>X                                  4567&#13;&#10;</xsl:text>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@NatOper"/><xsl:with-param name="width" select="42"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@CFOP"/><xsl:with-param name="width" select="8"/></xsl:call-template>
    <xsl:text>&#13;&#10;</xsl:text>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@RAZAO"/><xsl:with-param name="width" select="87"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@CGC_CPF"/><xsl:with-param name="width" select="34"/></xsl:call-template>
    <xsl:value-of select="@DT_EMS_NF"/>
    <xsl:text>&#13;&#10;</xsl:text>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@ENDERECO"/><xsl:with-param name="width" select="77"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@BAIRRO"/><xsl:with-param name="width" select="26"/></xsl:call-template>
    <xsl:value-of select="@CEP"/>
    <xsl:text>&#13;&#10;</xsl:text>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@MUNICIPIO"/><xsl:with-param name="width" select="57"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@FONEFAX"/><xsl:with-param name="width" select="22"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@UF"/><xsl:with-param name="width" select="8"/></xsl:call-template>
    <xsl:value-of select="@INSC_EST"/>
    <xsl:text>&#13;&#10;</xsl:text>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@VL_PRN_DOC1"/><xsl:with-param name="width" select="39"/></xsl:call-template>
    <xsl:value-of select="concat('     ', @DT_VNC_DOC1)"/>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@VL_PRN_DOC2"/><xsl:with-param name="width" select="25"/></xsl:call-template>
    <xsl:value-of select="concat('      ', @DT_VNC_DOC2)"/>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@VL_PRN_DOC3"/><xsl:with-param name="width" select="27"/></xsl:call-template>
    <xsl:value-of select="concat('    ', @DT_VNC_DOC3)"/>
    <xsl:text>&#13;&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="ITEM">
    <xsl:call-template name="left"><xsl:with-param name="text" select="@CD_PRO"/><xsl:with-param name="width" select="10"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@DESCRICAO"/><xsl:with-param name="width" select="48"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@POS_NF"/><xsl:with-param name="width" select="4"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="concat(@IC_ORI_PRO, @SIT_TRI)"/><xsl:with-param name="width" select="5"/></xsl:call-template>
    <xsl:call-template name="left"><xsl:with-param name="text" select="@UNIDADE"/><xsl:with-param name="width" select="9"/></xsl:call-template>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@QTDE"/><xsl:with-param name="width" select="7"/></xsl:call-template>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@VALOR_UN"/><xsl:with-param name="width" select="13"/></xsl:call-template>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@QTDE * @VALOR_UN"/><xsl:with-param name="width" select="20"/></xsl:call-template>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@VL_DSC"/><xsl:with-param name="width" select="7"/></xsl:call-template>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@ICMS"/><xsl:with-param name="width" select="6"/></xsl:call-template>
    <xsl:call-template name="right"><xsl:with-param name="number" select="@AQ_IPI"/><xsl:with-param name="width" select="6"/></xsl:call-template>
    <xsl:text>&#13;&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="TOTAIS">
    <xsl:for-each select="@VALOR_BASE_ICMS | @VALOR_ICMS | @VALOR_BAS_ICMS_RTD | @VALOR_ICMS_RTD | @VALOR_TOTAL | @VALOR_FRETE | @VALOR_SEGURO | @VALOR_DES_ASC | @VALOR_TOT_IPI | @VALOR_TOT_NF">
      <xsl:call-template name="right"><xsl:with-param name="number" select="."/><xsl:with-param name="width" select="27"/></xsl:call-template>
    </xsl:for-each>
    <xsl:text>&#13;&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="/PRINCIPAL">
    <xsl:apply-templates select="NOTA"/>
    <xsl:apply-templates select="ITEM"/>
    <xsl:apply-templates select="TOTAIS"/>
    <xsl:value-of select="concat(NOTA/@DC_TRP, ' ', NOTA/@CD_PLC_VEI_TRP, ' ', NOTA/@NR_CGC_CPL_TRP, '&#13;&#10;')"/>
    <xsl:value-of select="concat('VENDEDOR: ', NOTA/@VENDEDOR, '&#13;&#10;')"/>
  </xsl:template>
</xsl:stylesheet>

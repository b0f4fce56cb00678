<?xml version="1.0" encoding="UTF-8"?>
<!-- The receipts of generate_receipt as text, with the widths of examples/tavolux.conf: what the printing program
     is compared with, in speed and byte for byte. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="text" encoding="UTF-8"/>
  <xsl:strip-space elements="*"/>

  <xsl:variable name="blanks" select="'                                          '"/>
  <xsl:variable name="dots" select="'..........................................'"/>
  <xsl:variable name="separator" select="'==========================================&#10;'"/>

  <xsl:template name="right">
    <xsl:param name="text"/>
    <xsl:param name="width"/>
    <xsl:param name="fill" select="$blanks"/>
    <xsl:value-of select="concat(substring($fill, 1, $width - string-length($text)), $text)"/>
  </xsl:template>

  <xsl:template match="company">
    <xsl:for-each select="@*">
      <xsl:value-of select="concat(substring($blanks, 1, floor((34 - string-length(.)) div 2)), ., '&#10;')"/>
    </xsl:for-each>
    <xsl:value-of select="$separator"/>
  </xsl:template>

  <xsl:template match="receipt">
    <xsl:value-of select="concat(' Serial Number: ', @serialnumber, '&#10;', $separator)"/>
  </xsl:template>

  <xsl:template match="orderinfo">
    <xsl:value-of select="concat(' Date: ', @date, '&#10; Table: ', @table, '&#10;')"/>
    <xsl:value-of select="$separator"/>
    <xsl:if test="../receipe">
      <xsl:text>  Num Description            Price  Amount&#10;</xsl:text>
    </xsl:if>
  </xsl:template>

  <xsl:template match="receipe">
    <xsl:call-template name="right">
      <xsl:with-param name="text" select="@number"/>
      <xsl:with-param name="width" select="5"/>
    </xsl:call-template>
    <xsl:value-of select="concat(' x ', substring(concat(@name, $dots), 1, 19))"/>
    <xsl:call-template name="right">
      <xsl:with-param name="text" select="@price"/>
      <xsl:with-param name="width" select="7"/>
      <xsl:with-param name="fill" select="$dots"/>
    </xsl:call-template>
    <xsl:call-template name="right">
      <xsl:with-param name="text" select="@totalPrice"/>
      <xsl:with-param name="width" select="8"/>
    </xsl:call-template>
    <xsl:text>&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="total">
    <xsl:text>&#10;      TOTAL.......................</xsl:text>
    <xsl:call-template name="right">
      <xsl:with-param name="text" select="@price"/>
      <xsl:with-param name="width" select="8"/>
    </xsl:call-template>
    <xsl:text>&#10;</xsl:text>
  </xsl:template>
</xsl:stylesheet>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>QObject</name>
    <message>
        <source>Taxable</source>
        <translation>Incidência</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Taxa de IVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>IVA</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Qtd.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descr.</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preço</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Por pagar: </translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>depósito</translation>
    </message>
    <message>
        <source>withdrawal</source>
        <translation>levantamento</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>pagamento</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>fatura</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>crédito</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>reembolso</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RESUMOS</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>De: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Até: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>RESUMO DE CONSULTAS DE MESA</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Quantidade</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RESUMO DE TALÕES</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Por pagar: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Numerário: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Cartão de crédito: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Multibanco: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Outros: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>IVA (%)</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>INCIDÊNCIA</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>IVA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>VALOR</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RESUMO DE FATURAS</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>RESUMO DE DOCUMENTOS ANULADOS</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Hora:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Mesa:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Empregado:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Crédito:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefone:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>N.º de IVA:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>NIF:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Talão n.º: </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Fatura n.º:</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Entrega n.º:</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENTE</translation>
    </message>
    <message>
        <source>*** INCOMPLETE ***</source>
        <translation>*** INCOMPLETO ***</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>QObject</name>
    <message>
        <source>Taxable</source>
        <translation>Excl. btw</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Btw-tarief</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Btw</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAAL</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Aant.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Omschr.</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prijs</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Bedrag</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Nog te betalen: </translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>storting</translation>
    </message>
    <message>
        <source>withdrawal</source>
        <translation>opname</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>betaling</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>factuur</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>tegoed</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>terugbetaling</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>OVERZICHTEN</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Van: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Tot en met: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>OVERZICHT VOORLOPIGE REKENINGEN</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Aantal</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>OVERZICHT KASSABONNEN</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Nog te betalen: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Contant: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Creditcard: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Pinpas: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Overig: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>BTW (%)</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>EXCL. BTW</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>BTW</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>INCL. BTW</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>OVERZICHT FACTUREN</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>OVERZICHT GEANNULEERDE BONNEN</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMMER</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Nummers</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Tijd:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Tafel:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Bediening:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Opmerking:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Tegoed:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefoon:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>Btw-nummer:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>KvK-nummer:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Bonnummer: </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Factuurnummer:</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Bezorgnummer:</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>KLANT</translation>
    </message>
    <message>
        <source>*** INCOMPLETE ***</source>
        <translation>*** ONVOLLEDIG ***</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>QObject</name>
    <message>
        <source>Taxable</source>
        <translation>Kwota netto</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Stawka VAT</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Kwota VAT</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>RAZEM</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cena</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Kwota</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Do zapłaty: </translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>wpłata</translation>
    </message>
    <message>
        <source>withdrawal</source>
        <translation>wypłata</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>płatność</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>faktura</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>uznanie</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>zwrot</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>ZESTAWIENIA</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Od: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Do: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>ZESTAWIENIE RACHUNKÓW WSTĘPNYCH</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Liczba</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>ZESTAWIENIE PARAGONÓW</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Do zapłaty: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Gotówka: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Karta kredytowa: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Karta debetowa: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Inne: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>VAT (%)</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>NETTO</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>BRUTTO</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>ZESTAWIENIE FAKTUR</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>ZESTAWIENIE ANULOWAŃ</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMER</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Numery</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Godzina:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Stolik:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Kelner:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Uwagi:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Saldo:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>NIP UE:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>NIP:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Paragon nr: </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Faktura nr:</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Dostawa nr:</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>KLIENT</translation>
    </message>
    <message>
        <source>*** INCOMPLETE ***</source>
        <translation>*** NIEKOMPLETNE ***</translation>
    </message>
</context>
</TS>

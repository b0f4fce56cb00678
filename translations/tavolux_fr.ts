<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>QObject</name>
    <message>
        <source>Taxable</source>
        <translation>Base HT</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Taux de TVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>TVA</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Qté</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Reste à payer : </translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>dépôt</translation>
    </message>
    <message>
        <source>withdrawal</source>
        <translation>retrait</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>paiement</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>facture</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>avoir</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>remboursement</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RÉCAPITULATIFS</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Du : </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Au : </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>RÉCAPITULATIF DES ADDITIONS</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RÉCAPITULATIF DES TICKETS</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Reste à payer : </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Espèces : </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Carte de crédit : </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Carte de débit : </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Autres : </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>TVA (%)</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>BASE HT</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>TVA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>TOTAL TTC</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RÉCAPITULATIF DES FACTURES</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>RÉCAPITULATIF DES ANNULATIONS</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMÉRO</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Numéros</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Heure :</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Table :</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Serveur :</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Remarque :</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Crédit :</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Téléphone :</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>N° TVA :</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>SIRET :</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Ticket n° : </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Facture n° :</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Livraison n° :</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENT</translation>
    </message>
    <message>
        <source>*** INCOMPLETE ***</source>
        <translation>*** INCOMPLET ***</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>QObject</name>
    <message>
        <source>Serial Number: </source>
        <translation>Numero di serie: </translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>ui_agreementView</name>
    <message>
        <source>Privacy agreement</source>
        <translation>Privacy agreement</translation>
    </message>
    <message>
        <source>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</source>
        <translation>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Check for updates</translation>
    </message>
    <message>
        <source>Send crash reports automatically</source>
        <translation>Send crash reports automatically</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Agree</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Disagree</translation>
    </message>
</context>
</TS>

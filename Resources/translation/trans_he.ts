<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL">
<context>
    <name>ui_agreementView</name>
    <message>
        <source>Privacy agreement</source>
        <translation>הסכם פרטיות</translation>
    </message>
    <message>
        <source>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</source>
        <translation>מציג זה מנגן במחשב זה את ההקלטות של מצלמת הרכב שלך. הוא אינו אוסף את ההקלטות, המיקומים או מידע אישי אחר שלך. באישורך הוא בודק אם קיימות גרסאות חדשות של התוכנה ושולח דוח כאשר היא נעצרת באופן בלתי צפוי. ניתן להשתמש במציג גם ללא שתי האפשרויות.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>בדיקת עדכונים</translation>
    </message>
    <message>
        <source>Send crash reports automatically</source>
        <translation>שליחת דוחות קריסה באופן אוטומטי</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>מסכים</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>לא מסכים</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
</context>
</TS>

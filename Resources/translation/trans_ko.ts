<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>ui_agreementView</name>
    <message>
        <source>Privacy agreement</source>
        <translation>개인정보 이용 동의</translation>
    </message>
    <message>
        <source>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</source>
        <translation>이 뷰어는 블랙박스 녹화 영상을 이 컴퓨터에서 재생합니다. 녹화 영상, 위치 또는 기타 개인 정보를 수집하지 않습니다. 동의하시면 새 버전을 확인하고, 프로그램이 예기치 않게 종료될 때 보고서를 보냅니다. 두 기능 없이도 뷰어를 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Send crash reports automatically</source>
        <translation>오류 보고서 자동 전송</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>동의</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>동의 안 함</translation>
    </message>
</context>
</TS>

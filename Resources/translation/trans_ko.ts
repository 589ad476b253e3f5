<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
  <context>
    <name>CardSession</name>
    <message>
      <source>The memory card was removed.</source>
      <translation>메모리 카드가 제거되었습니다.</translation>
    </message>
  </context>
  <context>
    <name>ChannelChoices</name>
    <message>
      <source>No picture</source>
      <translation>영상 없음</translation>
    </message>
  </context>
  <context>
    <name>ConfigAccess</name>
    <message>
      <source>Error is occured!</source>
      <translation>오류가 발생했습니다!</translation>
    </message>
    <message>
      <source>This model is not supported!</source>
      <translation>지원하지 않는 모델입니다!</translation>
    </message>
    <message>
      <source>checksum is different!</source>
      <translation>체크섬이 다릅니다!</translation>
    </message>
    <message>
      <source>Setting file is not exist!</source>
      <translation>설정 파일이 없습니다!</translation>
    </message>
    <message>
      <source>This model is not support!</source>
      <translation>지원하지 않는 모델입니다!</translation>
    </message>
    <message>
      <source>The settings were not written: the SD card is not the one that was opened.</source>
      <translation>설정을 저장하지 않았습니다: 열었던 SD 카드가 아닙니다.</translation>
    </message>
    <message>
      <source>The settings could not be written to the SD card, and its previous settings could not be put back.</source>
      <translation>설정을 SD 카드에 저장하지 못했고, 이전 설정도 되돌리지 못했습니다.</translation>
    </message>
    <message>
      <source>The settings could not be written to the SD card. Its previous settings are kept.</source>
      <translation>설정을 SD 카드에 저장하지 못했습니다. 이전 설정이 유지됩니다.</translation>
    </message>
    <message>
      <source>Fail to format SDCard!</source>
      <translation>SD 카드 포맷에 실패했습니다!</translation>
    </message>
  </context>
  <context>
    <name>DriveListView</name>
    <message>
      <source>Recordings: %1</source>
      <translation>녹화: %1</translation>
    </message>
    <message>
      <source>Incidents: %1</source>
      <translation>사건: %1</translation>
    </message>
    <message>
      <source>Incidents: reading</source>
      <translation>사건: 읽는 중</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>주차</translation>
    </message>
    <message>
      <source>Drive</source>
      <translation>주행</translation>
    </message>
  </context>
  <context>
    <name>ExportSession</name>
    <message>
      <source>Play a recording to print its report.</source>
      <translation>보고서를 인쇄하려면 녹화 영상을 재생하세요.</translation>
    </message>
  </context>
  <context>
    <name>FfmpegRunner</name>
    <message>
      <source>the file there cannot be moved aside.</source>
      <translation>그 위치의 파일을 옮길 수 없습니다.</translation>
    </message>
    <message>
      <source>ffmpeg stopped unexpectedly.</source>
      <translation>ffmpeg가 예기치 않게 중지되었습니다.</translation>
    </message>
    <message>
      <source>ffmpeg ended with code %1.</source>
      <translation>ffmpeg가 코드 %1(으)로 종료되었습니다.</translation>
    </message>
    <message>
      <source>ffmpeg cannot be started: %1</source>
      <translation>ffmpeg를 시작할 수 없습니다: %1</translation>
    </message>
  </context>
  <context>
    <name>FileFormatThread</name>
    <message>
      <source>The SD card was not formatted: its configuration could not be saved.</source>
      <translation>SD 카드를 포맷하지 않았습니다: 설정을 보관할 수 없었습니다.</translation>
    </message>
    <message>
      <source>The configuration could not be put back on the SD card.</source>
      <translation>설정을 SD 카드에 되돌려 놓지 못했습니다.</translation>
    </message>
    <message>
      <source>The configuration could not be put back on the SD card. It is kept in %1.</source>
      <translation>설정을 SD 카드에 되돌려 놓지 못했습니다. 설정은 %1에 보관되어 있습니다.</translation>
    </message>
    <message>
      <source>The SD card is not the one that was opened, or it is no longer mounted. Nothing on it was changed.</source>
      <translation>열었던 SD 카드가 아니거나 더 이상 연결되어 있지 않습니다. 카드는 변경되지 않았습니다.</translation>
    </message>
    <message>
      <source>The SD card is no longer mounted. Nothing on it was changed.</source>
      <translation>SD 카드가 더 이상 연결되어 있지 않습니다. 카드는 변경되지 않았습니다.</translation>
    </message>
    <message>
      <source>You have no permission to format %1. Nothing on the SD card was changed.</source>
      <translation>%1을(를) 포맷할 권한이 없습니다. SD 카드는 변경되지 않았습니다.</translation>
    </message>
    <message>
      <source>The SD card could not be unmounted (%1). Nothing on it was changed.</source>
      <translation>SD 카드의 연결을 해제하지 못했습니다 (%1). 카드는 변경되지 않았습니다.</translation>
    </message>
    <message>
      <source>The formatter %1 could not be started. Nothing on the SD card was changed.</source>
      <translation>포맷 프로그램 %1을(를) 실행하지 못했습니다. SD 카드는 변경되지 않았습니다.</translation>
    </message>
    <message>
      <source>The formatter failed with exit code %1.</source>
      <translation>포맷 프로그램이 종료 코드 %1로 실패했습니다.</translation>
    </message>
  </context>
  <context>
    <name>Incident</name>
    <message>
      <source>Harsh braking</source>
      <translation>급제동</translation>
    </message>
    <message>
      <source>Harsh acceleration</source>
      <translation>급가속</translation>
    </message>
    <message>
      <source>Sharp turn</source>
      <translation>급회전</translation>
    </message>
    <message>
      <source>Impact</source>
      <translation>충격</translation>
    </message>
    <message>
      <source>Camera event</source>
      <translation>카메라 이벤트</translation>
    </message>
  </context>
  <context>
    <name>IncidentListView</name>
    <message>
      <source>The camera recorded this moment as an event.</source>
      <translation>카메라가 이 순간을 이벤트로 녹화했습니다.</translation>
    </message>
  </context>
  <context>
    <name>LanguageView</name>
    <message>
      <source>English </source>
      <translation>English </translation>
    </message>
    <message>
      <source>Korean </source>
      <translation>한국어 </translation>
    </message>
  </context>
  <context>
    <name>MapView</name>
    <message>
      <source>The map cannot be shown: its page in the program is damaged.</source>
      <translation>지도를 표시할 수 없습니다: 프로그램의 지도 페이지가 손상되었습니다.</translation>
    </message>
  </context>
  <context>
    <name>PlayControlView</name>
    <message>
      <source>Play / Pause</source>
      <translation>재생 / 일시정지</translation>
    </message>
    <message>
      <source>Stop</source>
      <translation>정지</translation>
    </message>
    <message>
      <source>Previous recording</source>
      <translation>이전 녹화</translation>
    </message>
    <message>
      <source>Next recording</source>
      <translation>다음 녹화</translation>
    </message>
    <message>
      <source>Step back</source>
      <translation>뒤로 이동</translation>
    </message>
    <message>
      <source>Step forward</source>
      <translation>앞으로 이동</translation>
    </message>
    <message>
      <source>Step by five seconds or by one frame</source>
      <translation>5초 또는 한 프레임씩 이동</translation>
    </message>
    <message>
      <source>Snapshot</source>
      <translation>스냅샷</translation>
    </message>
    <message>
      <source>Delete recording</source>
      <translation>녹화 삭제</translation>
    </message>
    <message>
      <source>Flip picture</source>
      <translation>화면 반전</translation>
    </message>
    <message>
      <source>Sound on / off</source>
      <translation>소리 켜기 / 끄기</translation>
    </message>
    <message>
      <source>Volume</source>
      <translation>음량</translation>
    </message>
    <message>
      <source>Sec</source>
      <translation>초</translation>
    </message>
    <message>
      <source>Frm</source>
      <translation>프레임</translation>
    </message>
  </context>
  <context>
    <name>PrintChannelSelectView</name>
    <message>
      <source>There is not selected channel!</source>
      <translation>선택된 채널이 없습니다!</translation>
    </message>
  </context>
  <context>
    <name>PrintView</name>
    <message>
      <source>The file cannot be written there.</source>
      <translation>그 위치에 파일을 쓸 수 없습니다.</translation>
    </message>
    <message>
      <source>The file there cannot be replaced.</source>
      <translation>그 위치의 파일을 바꿀 수 없습니다.</translation>
    </message>
    <message>
      <source>Save as PDF</source>
      <translation>PDF로 저장</translation>
    </message>
    <message>
      <source>PDF (*.pdf)</source>
      <translation>PDF (*.pdf)</translation>
    </message>
    <message>
      <source>The report was not saved:</source>
      <translation>보고서를 저장하지 못했습니다:</translation>
    </message>
    <message>
      <source>The report is saved:</source>
      <translation>보고서를 저장했습니다:</translation>
    </message>
  </context>
  <context>
    <name>RecordingName</name>
    <message>
      <source>The file is empty.</source>
      <translation>파일이 비어 있습니다.</translation>
    </message>
    <message>
      <source>The file is not a video recording.</source>
      <translation>동영상 녹화 파일이 아닙니다.</translation>
    </message>
    <message>
      <source>The recording is damaged or was cut off (for example by a power loss) and cannot be opened.</source>
      <translation>녹화 파일이 손상되었거나 (예: 전원 차단으로) 중간에 끊겨 열 수 없습니다.</translation>
    </message>
    <message>
      <source>The file holds no picture.</source>
      <translation>파일에 영상이 없습니다.</translation>
    </message>
  </context>
  <context>
    <name>ReportPage</name>
    <message>
      <source>FileName: </source>
      <translation>파일 이름: </translation>
    </message>
    <message>
      <source>Date: </source>
      <translation>날짜: </translation>
    </message>
    <message>
      <source>Model Name: </source>
      <translation>모델명: </translation>
    </message>
    <message>
      <source>GPS:</source>
      <translation>GPS:</translation>
    </message>
    <message>
      <source>Speed: </source>
      <translation>속도: </translation>
    </message>
    <message>
      <source>G-Senor: X:</source>
      <translation>G-센서: X:</translation>
    </message>
    <message>
      <source>Memo: </source>
      <translation>메모: </translation>
    </message>
    <message>
      <source>Report</source>
      <translation>보고서</translation>
    </message>
  </context>
  <context>
    <name>SDCardView</name>
    <message>
      <source>Drive</source>
      <translation>드라이브</translation>
    </message>
    <message>
      <source>Name</source>
      <translation>이름</translation>
    </message>
    <message>
      <source>Total</source>
      <translation>전체</translation>
    </message>
    <message>
      <source>Used</source>
      <translation>사용</translation>
    </message>
    <message>
      <source>Free</source>
      <translation>여유</translation>
    </message>
    <message>
      <source>SD Card is not selected!</source>
      <translation>SD 카드를 선택하지 않았습니다!</translation>
    </message>
    <message>
      <source>SD Card is not connected!</source>
      <translation>SD 카드가 연결되어 있지 않습니다!</translation>
    </message>
    <message>
      <source>SD Card is Empty!</source>
      <translation>SD 카드가 비어 있습니다!</translation>
    </message>
  </context>
  <context>
    <name>SaveAsView</name>
    <message>
      <source>There is no select channel</source>
      <translation>선택된 채널이 없습니다</translation>
    </message>
    <message>
      <source>Search Folder</source>
      <translation>폴더 찾기</translation>
    </message>
    <message>
      <source>File Setting</source>
      <translation>파일 설정</translation>
    </message>
    <message>
      <source>Choose Save Scene</source>
      <translation>저장할 장면 선택</translation>
    </message>
    <message>
      <source>Choose the folder to save to.</source>
      <translation>저장할 폴더를 선택하세요.</translation>
    </message>
    <message>
      <source>The folder %1 cannot be made.</source>
      <translation>%1 폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
      <source>Complete to Save Snapshot!</source>
      <translation>스냅샷 저장 완료!</translation>
    </message>
    <message>
      <source>Snapshot not saved:</source>
      <translation>스냅샷을 저장하지 못했습니다:</translation>
    </message>
    <message>
      <source>Saved:</source>
      <translation>저장됨:</translation>
    </message>
    <message>
      <source>The video cannot be saved: the ffmpeg program is missing. It belongs in %1 or on the PATH.</source>
      <translation>영상을 저장할 수 없습니다: ffmpeg 프로그램이 없습니다. %1 또는 PATH에 있어야 합니다.</translation>
    </message>
    <message>
      <source>%1 is the recording itself. Choose another folder to save the video to.</source>
      <translation>%1은(는) 녹화 파일 자체입니다. 영상을 저장할 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
      <source>The files of the chosen cameras are not there any more.</source>
      <translation>선택한 카메라의 파일이 더 이상 없습니다.</translation>
    </message>
    <message>
      <source>These files exist already:</source>
      <translation>다음 파일이 이미 있습니다:</translation>
    </message>
    <message>
      <source>Replace them?</source>
      <translation>바꾸시겠습니까?</translation>
    </message>
    <message>
      <source>Saving channel %1 of %2...</source>
      <translation>채널 %1/%2 저장 중...</translation>
    </message>
    <message>
      <source>Channel %1 has no file to save.</source>
      <translation>채널 %1에는 저장할 파일이 없습니다.</translation>
    </message>
    <message>
      <source>Complete File Download!</source>
      <translation>파일 다운로드 완료!</translation>
    </message>
    <message>
      <source>The video was not saved.</source>
      <translation>영상을 저장하지 못했습니다.</translation>
    </message>
    <message>
      <source>Saved before that:</source>
      <translation>그 전에 저장된 파일:</translation>
    </message>
    <message>
      <source>Cancelled. The unfinished file was removed.</source>
      <translation>취소했습니다. 완료되지 않은 파일은 삭제했습니다.</translation>
    </message>
    <message>
      <source>The video is still being saved. Stop saving it?</source>
      <translation>영상을 저장하는 중입니다. 저장을 중지하시겠습니까?</translation>
    </message>
  </context>
  <context>
    <name>ServiceRequest</name>
    <message>
      <source>Asking the service...</source>
      <translation>서비스에 묻는 중...</translation>
    </message>
    <message>
      <source>The service for updates and reports is not working.</source>
      <translation>업데이트 및 보고서 서비스가 작동하지 않습니다.</translation>
    </message>
    <message>
      <source>The service for updates and reports does not use the network now.</source>
      <translation>업데이트 및 보고서 서비스가 지금은 네트워크를 사용하지 않습니다.</translation>
    </message>
    <message>
      <source>The service for updates and reports did not answer.</source>
      <translation>업데이트 및 보고서 서비스가 응답하지 않았습니다.</translation>
    </message>
    <message>
      <source>The connection to the service for updates and reports was lost.</source>
      <translation>업데이트 및 보고서 서비스와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
      <source>Check your Network state</source>
      <translation>네트워크 상태를 확인하세요</translation>
    </message>
    <message>
      <source>DownLoad Fail</source>
      <translation>다운로드 실패</translation>
    </message>
  </context>
  <context>
    <name>ServiceSession</name>
    <message>
      <source>Update Message</source>
      <translation>업데이트 알림</translation>
    </message>
    <message>
      <source>find Update Version</source>
      <translation>새 버전이 있습니다</translation>
    </message>
    <message>
      <source>Would you like to download now?</source>
      <translation>지금 다운로드하시겠습니까?</translation>
    </message>
    <message>
      <source>The new version has been downloaded. The program closes now so that it can be installed.</source>
      <translation>새 버전을 다운로드했습니다. 설치할 수 있도록 프로그램을 지금 종료합니다.</translation>
    </message>
  </context>
  <context>
    <name>SettingOpt</name>
    <message>
      <source>Automatic Crash Reports</source>
      <translation>오류 보고서 자동 전송</translation>
    </message>
    <message>
      <source>After the program ended unexpectedly, the service sends its status log without asking.</source>
      <translation>프로그램이 예기치 않게 종료되면 서비스가 묻지 않고 상태 기록을 보냅니다.</translation>
    </message>
    <message>
      <source>Send a Crash Report</source>
      <translation>오류 보고서 보내기</translation>
    </message>
    <message>
      <source>Send Now</source>
      <translation>지금 보내기</translation>
    </message>
    <message>
      <source>Language</source>
      <translation>언어</translation>
    </message>
    <message>
      <source>Speed Unit</source>
      <translation>속도 단위</translation>
    </message>
    <message>
      <source>Keep Settings</source>
      <translation>설정 유지</translation>
    </message>
    <message>
      <source>Drive Gap</source>
      <translation>주행 간격</translation>
    </message>
    <message>
      <source>Incident Thresholds</source>
      <translation>사건 기준</translation>
    </message>
    <message>
      <source>Save the window, language, sound and folders when the program closes.</source>
      <translation>프로그램을 닫을 때 창, 언어, 소리, 폴더를 저장합니다.</translation>
    </message>
    <message>
      <source>Recordings closer than this make one drive.</source>
      <translation>이보다 가까운 녹화는 하나의 주행이 됩니다.</translation>
    </message>
    <message>
      <source>Of the published thresholds: lower finds more incidents, higher fewer.</source>
      <translation>공개된 기준 대비: 낮추면 더 많은 사건을, 높이면 더 적은 사건을 찾습니다.</translation>
    </message>
    <message>
      <source>Snapshot Folder</source>
      <translation>스냅샷 폴더</translation>
    </message>
    <message>
      <source>Change</source>
      <translation>변경</translation>
    </message>
    <message>
      <source>Video Folder</source>
      <translation>동영상 폴더</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>프로그램 초기화</translation>
    </message>
    <message>
      <source>Program Version</source>
      <translation>프로그램 버전</translation>
    </message>
    <message>
      <source>Check for Updates at Start</source>
      <translation>시작할 때 업데이트 확인</translation>
    </message>
    <message>
      <source>Each start asks the service whether a newer version is out.</source>
      <translation>시작할 때마다 새 버전이 나왔는지 서비스에 묻습니다.</translation>
    </message>
    <message>
      <source>Newer Version</source>
      <translation>새 버전</translation>
    </message>
    <message>
      <source>Update Now</source>
      <translation>지금 업데이트</translation>
    </message>
    <message>
      <source>Camera</source>
      <translation>카메라</translation>
    </message>
    <message>
      <source>Front Resolution</source>
      <translation>전방 해상도</translation>
    </message>
    <message>
      <source>1080p FHD</source>
      <translation>1080p FHD</translation>
    </message>
    <message>
      <source>1440p QHD</source>
      <translation>1440p QHD</translation>
    </message>
    <message>
      <source>Rear Resolution</source>
      <translation>후방 해상도</translation>
    </message>
    <message>
      <source>720p HD</source>
      <translation>720p HD</translation>
    </message>
    <message>
      <source>Frame Rate</source>
      <translation>프레임 속도</translation>
    </message>
    <message>
      <source>30 fps</source>
      <translation>30 fps</translation>
    </message>
    <message>
      <source>60 fps</source>
      <translation>60 fps</translation>
    </message>
    <message>
      <source>Exposure</source>
      <translation>노출</translation>
    </message>
    <message>
      <source>Video Bitrate</source>
      <translation>영상 비트레이트</translation>
    </message>
    <message>
      <source>A higher bitrate keeps more detail and fits less time on the card.</source>
      <translation>비트레이트가 높을수록 더 선명하지만 카드에 저장되는 시간은 짧아집니다.</translation>
    </message>
    <message>
      <source>Low</source>
      <translation>낮음</translation>
    </message>
    <message>
      <source>Normal</source>
      <translation>보통</translation>
    </message>
    <message>
      <source>High</source>
      <translation>높음</translation>
    </message>
    <message>
      <source>Record Audio</source>
      <translation>음성 녹음</translation>
    </message>
    <message>
      <source>Off</source>
      <translation>끔</translation>
    </message>
    <message>
      <source>On</source>
      <translation>켬</translation>
    </message>
    <message>
      <source>Date Stamp</source>
      <translation>날짜 표시</translation>
    </message>
    <message>
      <source>Speed Stamp</source>
      <translation>속도 표시</translation>
    </message>
    <message>
      <source>Rear Camera Mirror</source>
      <translation>후방 카메라 좌우 반전</translation>
    </message>
    <message>
      <source>Battery Protection</source>
      <translation>배터리 보호</translation>
    </message>
    <message>
      <source>Parking Mode</source>
      <translation>주차 모드</translation>
    </message>
    <message>
      <source>Impact only</source>
      <translation>충격만</translation>
    </message>
    <message>
      <source>Motion and impact</source>
      <translation>움직임과 충격</translation>
    </message>
    <message>
      <source>Time lapse</source>
      <translation>타임랩스</translation>
    </message>
    <message>
      <source>Low Voltage Cut-off</source>
      <translation>저전압 차단</translation>
    </message>
    <message>
      <source>Stops recording before the car battery runs too low to start the engine.</source>
      <translation>차량 배터리가 시동을 걸 수 없을 만큼 낮아지기 전에 녹화를 멈춥니다.</translation>
    </message>
    <message>
      <source>Cut-off Voltage</source>
      <translation>차단 전압</translation>
    </message>
    <message>
      <source>11.8V</source>
      <translation>11.8V</translation>
    </message>
    <message>
      <source>12.0V</source>
      <translation>12.0V</translation>
    </message>
    <message>
      <source>12.2V</source>
      <translation>12.2V</translation>
    </message>
    <message>
      <source>12.4V</source>
      <translation>12.4V</translation>
    </message>
    <message>
      <source>Parking Timer</source>
      <translation>주차 녹화 시간</translation>
    </message>
    <message>
      <source>6 h</source>
      <translation>6시간</translation>
    </message>
    <message>
      <source>12 h</source>
      <translation>12시간</translation>
    </message>
    <message>
      <source>24 h</source>
      <translation>24시간</translation>
    </message>
    <message>
      <source>48 h</source>
      <translation>48시간</translation>
    </message>
    <message>
      <source>Memory</source>
      <translation>메모리</translation>
    </message>
    <message>
      <source>Memory Allocation</source>
      <translation>메모리 할당</translation>
    </message>
    <message>
      <source>Changing it formats the memory card.</source>
      <translation>변경하면 메모리 카드가 포맷됩니다.</translation>
    </message>
    <message>
      <source>Driving priority</source>
      <translation>주행 우선</translation>
    </message>
    <message>
      <source>Event priority</source>
      <translation>이벤트 우선</translation>
    </message>
    <message>
      <source>Parking priority</source>
      <translation>주차 우선</translation>
    </message>
    <message>
      <source>Driving only</source>
      <translation>주행 전용</translation>
    </message>
    <message>
      <source>Overwrite Events</source>
      <translation>이벤트 덮어쓰기</translation>
    </message>
    <message>
      <source>Recording Length</source>
      <translation>녹화 길이</translation>
    </message>
    <message>
      <source>1 min</source>
      <translation>1분</translation>
    </message>
    <message>
      <source>2 min</source>
      <translation>2분</translation>
    </message>
    <message>
      <source>3 min</source>
      <translation>3분</translation>
    </message>
    <message>
      <source>Sensitive</source>
      <translation>감도</translation>
    </message>
    <message>
      <source>Driving Impact Sensitivity</source>
      <translation>주행 충격 감도</translation>
    </message>
    <message>
      <source>Lowest</source>
      <translation>가장 낮음</translation>
    </message>
    <message>
      <source>Middle</source>
      <translation>중간</translation>
    </message>
    <message>
      <source>Highest</source>
      <translation>가장 높음</translation>
    </message>
    <message>
      <source>Parking Impact Sensitivity</source>
      <translation>주차 충격 감도</translation>
    </message>
    <message>
      <source>Motion Detection Sensitivity</source>
      <translation>움직임 감지 감도</translation>
    </message>
    <message>
      <source>System</source>
      <translation>시스템</translation>
    </message>
    <message>
      <source>Time Zone</source>
      <translation>시간대</translation>
    </message>
    <message>
      <source>UTC-12:00</source>
      <translation>UTC-12:00</translation>
    </message>
    <message>
      <source>UTC-11:00</source>
      <translation>UTC-11:00</translation>
    </message>
    <message>
      <source>UTC-10:00</source>
      <translation>UTC-10:00</translation>
    </message>
    <message>
      <source>UTC-09:00</source>
      <translation>UTC-09:00</translation>
    </message>
    <message>
      <source>UTC-08:00</source>
      <translation>UTC-08:00</translation>
    </message>
    <message>
      <source>UTC-07:00</source>
      <translation>UTC-07:00</translation>
    </message>
    <message>
      <source>UTC-06:00</source>
      <translation>UTC-06:00</translation>
    </message>
    <message>
      <source>UTC-05:00</source>
      <translation>UTC-05:00</translation>
    </message>
    <message>
      <source>UTC-04:00</source>
      <translation>UTC-04:00</translation>
    </message>
    <message>
      <source>UTC-03:00</source>
      <translation>UTC-03:00</translation>
    </message>
    <message>
      <source>UTC-02:00</source>
      <translation>UTC-02:00</translation>
    </message>
    <message>
      <source>UTC-01:00</source>
      <translation>UTC-01:00</translation>
    </message>
    <message>
      <source>UTC+00:00</source>
      <translation>UTC+00:00</translation>
    </message>
    <message>
      <source>UTC+01:00</source>
      <translation>UTC+01:00</translation>
    </message>
    <message>
      <source>UTC+02:00</source>
      <translation>UTC+02:00</translation>
    </message>
    <message>
      <source>UTC+03:00</source>
      <translation>UTC+03:00</translation>
    </message>
    <message>
      <source>UTC+04:00</source>
      <translation>UTC+04:00</translation>
    </message>
    <message>
      <source>UTC+05:00</source>
      <translation>UTC+05:00</translation>
    </message>
    <message>
      <source>UTC+05:30</source>
      <translation>UTC+05:30</translation>
    </message>
    <message>
      <source>UTC+05:45</source>
      <translation>UTC+05:45</translation>
    </message>
    <message>
      <source>UTC+06:00</source>
      <translation>UTC+06:00</translation>
    </message>
    <message>
      <source>UTC+07:00</source>
      <translation>UTC+07:00</translation>
    </message>
    <message>
      <source>UTC+08:00</source>
      <translation>UTC+08:00</translation>
    </message>
    <message>
      <source>UTC+09:00</source>
      <translation>UTC+09:00</translation>
    </message>
    <message>
      <source>UTC+09:30</source>
      <translation>UTC+09:30</translation>
    </message>
    <message>
      <source>UTC+10:00</source>
      <translation>UTC+10:00</translation>
    </message>
    <message>
      <source>UTC+11:00</source>
      <translation>UTC+11:00</translation>
    </message>
    <message>
      <source>UTC+12:00</source>
      <translation>UTC+12:00</translation>
    </message>
    <message>
      <source>UTC+13:00</source>
      <translation>UTC+13:00</translation>
    </message>
    <message>
      <source>UTC+14:00</source>
      <translation>UTC+14:00</translation>
    </message>
    <message>
      <source>Daylight Saving Time</source>
      <translation>서머타임</translation>
    </message>
    <message>
      <source>km/h</source>
      <translation>km/h</translation>
    </message>
    <message>
      <source>mph</source>
      <translation>mph</translation>
    </message>
    <message>
      <source>Volume</source>
      <translation>음량</translation>
    </message>
    <message>
      <source>Mute</source>
      <translation>무음</translation>
    </message>
    <message>
      <source>Voice Guidance</source>
      <translation>음성 안내</translation>
    </message>
    <message>
      <source>Model Name</source>
      <translation>모델명</translation>
    </message>
    <message>
      <source>Firmware Version</source>
      <translation>펌웨어 버전</translation>
    </message>
    <message>
      <source>Interior Camera</source>
      <translation>실내 카메라</translation>
    </message>
    <message>
      <source>Wi-Fi</source>
      <translation>Wi-Fi</translation>
    </message>
    <message>
      <source>Wifi Password</source>
      <translation>Wi-Fi 비밀번호</translation>
    </message>
    <message>
      <source>The last four characters of the camera's serial number.</source>
      <translation>카메라 일련번호의 마지막 네 글자입니다.</translation>
    </message>
    <message>
      <source>2160p UHD</source>
      <translation>2160p UHD</translation>
    </message>
    <message>
      <source>Night Vision</source>
      <translation>야간 보정</translation>
    </message>
    <message>
      <source>LCD Auto Off</source>
      <translation>LCD 자동 꺼짐</translation>
    </message>
  </context>
  <context>
    <name>SettingOptCrashReport</name>
    <message>
      <source>The transfer is complete.</source>
      <translation>전송이 완료되었습니다.</translation>
    </message>
  </context>
  <context>
    <name>SettingOptProgram</name>
    <message>
      <source>Choose a folder</source>
      <translation>폴더 선택</translation>
    </message>
  </context>
  <context>
    <name>SettingView</name>
    <message>
      <source>There are unsaved settings.</source>
      <translation>저장하지 않은 설정이 있습니다.</translation>
    </message>
    <message>
      <source>SD is not exist!</source>
      <translation>SD 카드가 없습니다!</translation>
    </message>
    <message>
      <source>File Format</source>
      <translation>파일 포맷</translation>
    </message>
    <message>
      <source>Do you Really want to file format?</source>
      <translation>정말 포맷하시겠습니까?</translation>
    </message>
    <message>
      <source>It can't go back if you clicked yes.</source>
      <translation>예를 누르면 되돌릴 수 없습니다.</translation>
    </message>
    <message>
      <source>Error Occured!</source>
      <translation>오류가 발생했습니다!</translation>
    </message>
    <message>
      <source>Complete!</source>
      <translation>완료되었습니다!</translation>
    </message>
    <message>
      <source>Device Reset</source>
      <translation>기기 초기화</translation>
    </message>
    <message>
      <source>The memory will be formatted to return some settings to defaults.</source>
      <translation>일부 설정을 기본값으로 되돌리기 위해 메모리가 포맷됩니다.</translation>
    </message>
    <message>
      <source>Would you like to return your device to factory settings?</source>
      <translation>기기를 공장 설정으로 되돌리시겠습니까?</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>프로그램 초기화</translation>
    </message>
    <message>
      <source>Program will be quit.</source>
      <translation>프로그램이 종료됩니다.</translation>
    </message>
  </context>
  <context>
    <name>SnapshotWriter</name>
    <message>
      <source>The camera showed no picture.</source>
      <translation>카메라 화면이 없습니다.</translation>
    </message>
    <message>
      <source>The folder cannot be made.</source>
      <translation>폴더를 만들 수 없습니다.</translation>
    </message>
  </context>
  <context>
    <name>TavFileComboBox</name>
    <message>
      <source>  All Type</source>
      <translation>  모든 유형</translation>
    </message>
    <message>
      <source>  Filter</source>
      <translation>  필터</translation>
    </message>
  </context>
  <context>
    <name>TavFileListItem</name>
    <message>
      <source>There is no item.</source>
      <translation>항목이 없습니다.</translation>
    </message>
    <message>
      <source>Item is exist!</source>
      <translation>이미 목록에 있는 파일입니다!</translation>
    </message>
    <message>
      <source>Item format is different with our service supproted!</source>
      <translation>지원하지 않는 파일 형식입니다!</translation>
    </message>
    <message>
      <source>Do you want to delete the selected files at disk?</source>
      <translation>선택한 파일을 디스크에서 삭제하시겠습니까?</translation>
    </message>
    <message>
      <source>Do you want to delete the selected files at list?</source>
      <translation>선택한 파일을 목록에서 삭제하시겠습니까?</translation>
    </message>
    <message>
      <source>This File is loading now.. Please try later</source>
      <translation>이 파일을 불러오는 중입니다. 잠시 후 다시 시도하세요.</translation>
    </message>
    <message>
      <source>and %1 more</source>
      <translation>외 %1개</translation>
    </message>
    <message>
      <source>These files could not be deleted:
%1</source>
      <translation>다음 파일을 삭제하지 못했습니다:
%1</translation>
    </message>
    <message>
      <source>  Delete at list</source>
      <translation>  목록에서 삭제</translation>
    </message>
    <message>
      <source>  Delete from disk</source>
      <translation>  디스크에서 삭제</translation>
    </message>
    <message>
      <source>Reading lengths %v / %m</source>
      <translation>길이 읽는 중 %v / %m</translation>
    </message>
    <message>
      <source>Open file</source>
      <translation>파일 열기</translation>
    </message>
    <message>
      <source>Movie file (*.avi *.mp4)</source>
      <translation>동영상 파일 (*.avi *.mp4)</translation>
    </message>
    <message>
      <source>Open Folder</source>
      <translation>폴더 열기</translation>
    </message>
    <message>
      <source>This recording cannot be played.</source>
      <translation>이 녹화 영상은 재생할 수 없습니다.</translation>
    </message>
  </context>
  <context>
    <name>TavPrompt</name>
    <message>
      <source>Warning</source>
      <translation>경고</translation>
    </message>
  </context>
  <context>
    <name>TavShortcutTable</name>
    <message>
      <source>Open files</source>
      <translation>파일 열기</translation>
    </message>
    <message>
      <source>Open folder</source>
      <translation>폴더 열기</translation>
    </message>
    <message>
      <source>Memory card</source>
      <translation>메모리 카드</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>인쇄</translation>
    </message>
    <message>
      <source>Language</source>
      <translation>언어</translation>
    </message>
    <message>
      <source>Capture</source>
      <translation>화면 캡처</translation>
    </message>
    <message>
      <source>Settings</source>
      <translation>설정</translation>
    </message>
    <message>
      <source>About</source>
      <translation>정보</translation>
    </message>
  </context>
  <context>
    <name>UpdateView</name>
    <message>
      <source>unknown</source>
      <translation>알 수 없음</translation>
    </message>
    <message>
      <source>Downloading the new version...</source>
      <translation>새 버전을 다운로드하는 중...</translation>
    </message>
    <message>
      <source>The service is still downloading. Please wait...</source>
      <translation>서비스가 아직 다운로드 중입니다. 잠시 기다려 주세요...</translation>
    </message>
    <message>
      <source>The download is complete.</source>
      <translation>다운로드가 완료되었습니다.</translation>
    </message>
  </context>
  <context>
    <name>VersionText</name>
    <message>
      <source>Version %1 is out.</source>
      <translation>버전 %1이(가) 나왔습니다.</translation>
    </message>
    <message>
      <source>This is the latest version.</source>
      <translation>최신 버전입니다.</translation>
    </message>
    <message>
      <source>The service gave an answer this program does not understand.</source>
      <translation>서비스가 이 프로그램이 이해할 수 없는 응답을 보냈습니다.</translation>
    </message>
  </context>
  <context>
    <name>ui_aboutView</name>
    <message>
      <source>About</source>
      <translation>정보</translation>
    </message>
    <message>
      <source>Version %1</source>
      <translation>버전 %1</translation>
    </message>
    <message>
      <source>Ask the service whether a newer version is out.</source>
      <translation>새 버전이 나왔는지 서비스에 물어보세요.</translation>
    </message>
    <message>
      <source>Check for Updates</source>
      <translation>업데이트 확인</translation>
    </message>
    <message>
      <source>Update</source>
      <translation>업데이트</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>닫기</translation>
    </message>
  </context>
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
  <context>
    <name>ui_chartView</name>
    <message>
      <source>X</source>
      <translation>X</translation>
    </message>
    <message>
      <source>Y</source>
      <translation>Y</translation>
    </message>
    <message>
      <source>Z</source>
      <translation>Z</translation>
    </message>
  </context>
  <context>
    <name>ui_languageView</name>
    <message>
      <source>Language</source>
      <translation>언어</translation>
    </message>
    <message>
      <source>Choose the language of the program</source>
      <translation>프로그램 언어를 선택하세요</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>확인</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>취소</translation>
    </message>
  </context>
  <context>
    <name>ui_mainWindow</name>
    <message>
      <source>Recordings</source>
      <translation>녹화 영상</translation>
    </message>
    <message>
      <source>Drives</source>
      <translation>주행</translation>
    </message>
    <message>
      <source>Map</source>
      <translation>지도</translation>
    </message>
    <message>
      <source>All</source>
      <translation>전체</translation>
    </message>
    <message>
      <source>Infinity</source>
      <translation>상시</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>주차</translation>
    </message>
    <message>
      <source>Event</source>
      <translation>이벤트</translation>
    </message>
  </context>
  <context>
    <name>ui_playControlView</name>
    <message>
      <source>0.5x</source>
      <translation>0.5x</translation>
    </message>
    <message>
      <source>1x</source>
      <translation>1x</translation>
    </message>
    <message>
      <source>1.5x</source>
      <translation>1.5x</translation>
    </message>
    <message>
      <source>2x</source>
      <translation>2x</translation>
    </message>
  </context>
  <context>
    <name>ui_printChannelSelectView</name>
    <message>
      <source>Print</source>
      <translation>인쇄</translation>
    </message>
    <message>
      <source>Choose the camera whose picture goes into the report</source>
      <translation>보고서에 넣을 카메라 영상을 선택하세요</translation>
    </message>
    <message>
      <source>Channel 1</source>
      <translation>채널 1</translation>
    </message>
    <message>
      <source>Channel 2</source>
      <translation>채널 2</translation>
    </message>
    <message>
      <source>Channel 3</source>
      <translation>채널 3</translation>
    </message>
    <message>
      <source>Channel 4</source>
      <translation>채널 4</translation>
    </message>
    <message>
      <source>Channel 5</source>
      <translation>채널 5</translation>
    </message>
    <message>
      <source>Next</source>
      <translation>다음</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>취소</translation>
    </message>
  </context>
  <context>
    <name>ui_printView</name>
    <message>
      <source>Report</source>
      <translation>보고서</translation>
    </message>
    <message>
      <source>Memo</source>
      <translation>메모</translation>
    </message>
    <message>
      <source>The memo is printed on the last line of the report.</source>
      <translation>메모는 보고서의 마지막 줄에 인쇄됩니다.</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>인쇄</translation>
    </message>
    <message>
      <source>Save as PDF</source>
      <translation>PDF로 저장</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>닫기</translation>
    </message>
  </context>
  <context>
    <name>ui_sDCardView</name>
    <message>
      <source>Memory Card</source>
      <translation>메모리 카드</translation>
    </message>
    <message>
      <source>Choose the memory card of your dash camera.</source>
      <translation>블랙박스의 메모리 카드를 선택하세요.</translation>
    </message>
    <message>
      <source>Refresh</source>
      <translation>새로 고침</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>열기</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>취소</translation>
    </message>
  </context>
  <context>
    <name>ui_saveAsView</name>
    <message>
      <source>Choose Save Scene</source>
      <translation>저장할 장면 선택</translation>
    </message>
    <message>
      <source>Choose the cameras to save</source>
      <translation>저장할 카메라를 선택하세요</translation>
    </message>
    <message>
      <source>Channel 1</source>
      <translation>채널 1</translation>
    </message>
    <message>
      <source>Channel 2</source>
      <translation>채널 2</translation>
    </message>
    <message>
      <source>Channel 3</source>
      <translation>채널 3</translation>
    </message>
    <message>
      <source>Channel 4</source>
      <translation>채널 4</translation>
    </message>
    <message>
      <source>Channel 5</source>
      <translation>채널 5</translation>
    </message>
    <message>
      <source>Save Snapshot</source>
      <translation>스냅샷 저장</translation>
    </message>
    <message>
      <source>Save Video</source>
      <translation>영상 저장</translation>
    </message>
    <message>
      <source>Save to this folder</source>
      <translation>저장할 폴더</translation>
    </message>
    <message>
      <source>File type</source>
      <translation>파일 형식</translation>
    </message>
    <message>
      <source>MP4</source>
      <translation>MP4</translation>
    </message>
    <message>
      <source>AVI</source>
      <translation>AVI</translation>
    </message>
    <message>
      <source>Back</source>
      <translation>뒤로</translation>
    </message>
    <message>
      <source>Save</source>
      <translation>저장</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>취소</translation>
    </message>
  </context>
  <context>
    <name>ui_settingView</name>
    <message>
      <source>Settings</source>
      <translation>설정</translation>
    </message>
    <message>
      <source>Device</source>
      <translation>기기</translation>
    </message>
    <message>
      <source>Camera</source>
      <translation>카메라</translation>
    </message>
    <message>
      <source>Battery Protection</source>
      <translation>배터리 보호</translation>
    </message>
    <message>
      <source>Memory</source>
      <translation>메모리</translation>
    </message>
    <message>
      <source>Sensitive</source>
      <translation>감도</translation>
    </message>
    <message>
      <source>System</source>
      <translation>시스템</translation>
    </message>
    <message>
      <source>PCViewer</source>
      <translation>PC 뷰어</translation>
    </message>
    <message>
      <source>Program Setting</source>
      <translation>프로그램 설정</translation>
    </message>
    <message>
      <source>Update</source>
      <translation>업데이트</translation>
    </message>
    <message>
      <source>Crash Report</source>
      <translation>오류 보고서</translation>
    </message>
    <message>
      <source>Open a memory card to see the settings of its camera.</source>
      <translation>카메라 설정을 보려면 메모리 카드를 여세요.</translation>
    </message>
    <message>
      <source>A program reset returns the window, language, sound and folders to their first start and starts the program again.</source>
      <translation>프로그램 초기화는 창, 언어, 소리, 폴더를 처음 실행한 상태로 되돌리고 프로그램을 다시 시작합니다.</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>프로그램 초기화</translation>
    </message>
    <message>
      <source>File Format</source>
      <translation>파일 포맷</translation>
    </message>
    <message>
      <source>Device Reset</source>
      <translation>기기 초기화</translation>
    </message>
    <message>
      <source>Apply</source>
      <translation>적용</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>확인</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>취소</translation>
    </message>
  </context>
  <context>
    <name>ui_tavTypeList</name>
    <message>
      <source>Infinity</source>
      <translation>상시</translation>
    </message>
    <message>
      <source>Event</source>
      <translation>이벤트</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>주차</translation>
    </message>
    <message>
      <source>User</source>
      <translation>수동</translation>
    </message>
  </context>
  <context>
    <name>ui_topBar</name>
    <message>
      <source>tavoric</source>
      <translation>tavoric</translation>
    </message>
  </context>
  <context>
    <name>ui_updateView</name>
    <message>
      <source>Update</source>
      <translation>업데이트</translation>
    </message>
    <message>
      <source>A newer version of the program can be downloaded. When the download is complete, the program closes so that the new version can be installed.</source>
      <translation>프로그램의 새 버전을 다운로드할 수 있습니다. 다운로드가 완료되면 새 버전을 설치할 수 있도록 프로그램이 종료됩니다.</translation>
    </message>
    <message>
      <source>Installed: %1    Available: %2</source>
      <translation>설치됨: %1    사용 가능: %2</translation>
    </message>
    <message>
      <source>Check for updates when the program starts</source>
      <translation>프로그램을 시작할 때 업데이트 확인</translation>
    </message>
    <message>
      <source>Download</source>
      <translation>다운로드</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>닫기</translation>
    </message>
  </context>
  <context>
    <name>ui_waitAlertView</name>
    <message>
      <source>Please wait...</source>
      <translation>잠시 기다려 주세요...</translation>
    </message>
  </context>
  <context>
    <name>ui_waitPlayLogo</name>
    <message>
      <source>Open a folder of recordings or drop files here</source>
      <translation>녹화 폴더를 열거나 파일을 여기에 끌어다 놓으세요</translation>
    </message>
  </context>
</TS>

@echo off
rem run-tests.cmd [NAME...]: runs the tests of Quillhue, or those named, and writes report.txt beside itself. Please do
rem not use mouse, keyboard and clipboard meanwhile: the tests of the window use them, for about ten minutes.
setlocal
cd /d "%~dp0data"
set report=%~dp0report.txt
set names=%*
if "%names%"=="" set names=core formats pictures colormodes effects commands remap ui_logic cli ui_services replays ui
set failed=
ver >"%report%"
rem The layout tests alone run at any resolution of the screen.
set flags=
reg query "HKCU\Control Panel\Desktop\WindowMetrics" /v AppliedDPI >>"%report%" 2>nul
if not errorlevel 1 (
  reg query "HKCU\Control Panel\Desktop\WindowMetrics" /v AppliedDPI | find "0x60" >nul
  if errorlevel 1 set flags=--gtest_filter=*Layout*:Sizing.*:Handles.*:Soak.*
)
for %%n in (%names%) do call :%%n
if "%failed%"=="" (echo All passed>>"%report%") else (echo Failed:%failed%>>"%report%")
type "%report%" | find /v "[ "
echo The report is in %report%
pause
exit /b

:replays
for %%f in (..\tests\*_fuzz.exe) do call :run %%f samples findings
exit /b
:ui
call :run ..\tests\ui_tests.exe --gtest_brief=1 %flags% "%~dp0quillhue.exe"
exit /b
:core
:formats
:pictures
:colormodes
:effects
:commands
:remap
:ui_logic
:cli
:ui_services
call :run ..\tests\%name%_tests.exe --gtest_brief=1
exit /b

:run
echo Running %1
echo == %*>>"%report%"
%* >>"%report%" 2>&1
if errorlevel 1 set failed=%failed% %~n1
exit /b

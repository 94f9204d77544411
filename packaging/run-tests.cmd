@echo off
rem run-tests.cmd [NAME...]: runs the tests of Quillhue, or those named, and writes report.txt beside itself. Please do
rem not use mouse, keyboard and clipboard meanwhile: the tests of the window use them, for about ten minutes.
setlocal
cd /d "%~dp0data"
set report="%~dp0report.txt"
set names=%*
if "%names%"=="" set names=core formats pictures colormodes effects commands remap ui_logic cli ui_services replays ui
set failed=
ver >%report%
for %%n in (%names%) do call :test %%n
if "%failed%"=="" (echo All tests passed.>>%report%) else echo Failed:%failed%>>%report%
type %report%
pause
exit /b

:test
if %1==replays goto :replays
if %1==ui goto :window
call :run ..\tests\%1_tests.exe --gtest_brief=1
exit /b

:replays
for %%f in (..\tests\*_fuzz.exe) do call :run ..\tests\%%~nxf samples standard seeds findings
exit /b

rem At another resolution than 96 dpi only the tests that do not count pixels run.
:window
set flags=
set dpi=0x60
for /f "tokens=2,3" %%t in ('reg query "HKCU\Control Panel\Desktop\WindowMetrics" /v AppliedDPI 2^>nul') do if %%t==REG_DWORD set dpi=%%u
echo Resolution: %dpi% dpi>>%report%
if not "%dpi%"=="0x60" set flags=--gtest_filter=*Layout*:Sizing.*:Handles.*:Soak.*
call :run ..\tests\ui_tests.exe --gtest_brief=1 %flags% ..\quillhue.exe
exit /b

:run
echo Running %1
echo == %*>>%report%
%* >>%report% 2>&1
if errorlevel 1 set failed=%failed% %~n1
exit /b

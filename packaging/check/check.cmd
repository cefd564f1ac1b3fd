@echo off
rem Runs the check and leaves report.txt here. Nothing is installed; "Read me.txt" tells the rest.
rem With /q it does not wait for a key at its end.
setlocal
pushd "%~dp0"
if not exist programs\check.exe goto packed
ver
echo.
echo Please leave mouse and keyboard alone until the check is over, in about ten minutes.
echo Close this window, or press Ctrl+C, to break it off.
echo.
set option=
if /i "%~1"=="/cases" set option=--cases-only
programs\check.exe %option%
set result=%errorlevel%
goto over

:packed
echo Please unpack all of the zip into a folder, and start check.cmd there.
set result=2

:over
popd
if /i not "%~1"=="/q" if /i not "%~2"=="/q" pause
exit /b %result%

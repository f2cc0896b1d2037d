# Makes the folder that the installer packs: installs the portable layout of a Windows build and puts
# Qt's libraries and plugins beside the programs.
#   deploy.ps1 -Build build-windows -Target deployed [-Qt C:\Qt\5.15.2\mingw81_64]
param(
    [Parameter(Mandatory = $true)][string]$Build,
    [Parameter(Mandatory = $true)][string]$Target,
    [string]$Qt = ""
)
$ErrorActionPreference = "Stop"

cmake --install $Build --prefix $Target --component portable
if ($LASTEXITCODE -ne 0) { throw "cmake --install failed" }

$tool = "windeployqt"
if ($Qt) { $tool = Join-Path $Qt "bin\windeployqt.exe" }
foreach ($program in "mz6218", "mz6218-patterns", "mz6218-sim") {
    & $tool --release --compiler-runtime (Join-Path $Target "bin\$program.exe")
    if ($LASTEXITCODE -ne 0) { throw "windeployqt failed for $program" }
}
Write-Output "Deployed into $Target"

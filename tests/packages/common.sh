# Shared by the scripts of this folder. Source it; it sets $project, and a new, empty home folder.
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
user_home=$project/build/packages-home
rm -rf "$user_home"
mkdir -p "$user_home"
export HOME=$user_home
unset "${!XDG_@}" "${!TARVIK_PAGE@}" "${!TARVIK_DOWNLOADS@}" "${!TARVIK_SIGN@}"
# Otherwise the compiler cache of the build would be kept there.
export CCACHE_DISABLE=1
. "$project/scripts/common.sh"
packages=$project/build/packages
version=$(program_version)

# expect WHAT EXPECTED SEEN: the two must be the same text.
expect() {
  [ "$2" = "$3" ] || fail "$1: expected
$2
but there is
$3"
  say "good: $1"
}

exit_code() { local code=0; "$@" >/dev/null 2>&1 </dev/null || code=$?; echo "$code"; }

# program_files: the files in every package of the program, one per line.
program_files() {
  printf '%s\n' CHANGELOG.txt LICENSE.txt README.txt guide/guide-{chs,cht,eng}.html guide/guide.css tarvik.exe third-party-notices.txt
  (cd "$project/docs" && ls guide/images/*.png)
}

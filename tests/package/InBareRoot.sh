#!/bin/sh
# In a bare Debian, as root: installs the packages of a folder and nothing else of ours, uses them as
# a newcomer would, removes them, and fails unless nothing is left.
# usage: InBareRoot.sh PACKAGES EXAMPLES CLIENT   (CLIENT: tests/install, whose toolkit.cpp is built)
set -eu
packages=$1 examples=$2 client=$3
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
work=$(mktemp -d)

# What packages leave to the system: its own records, and what ldconfig and locales keep.
everything() {
  find / -xdev \( -path /proc -o -path /tmp -o -path /var/lib/dpkg -o -path /var/cache -o \
    -path /var/log -o -path /var/lib/apt -o -path "$packages" -o -path "$examples" -o \
    -path "$client" \) -prune -o ! -name ld.so.cache -print | sort
}

apt-get update -qq
# What clients are built with, and what ours depend on of Debian's: not ours to remove.
apt-get install -y -qq --no-install-recommends g++ cmake make pkgconf libxerces-c3.2 > "$work/log" 2>&1 ||
  { tail "$work/log"; exit 1; }
everything > "$work/before"

dpkg --install "$packages"/*.deb > "$work/log" 2>&1 || { cat "$work/log"; exit 1; }
names=$(for file in "$packages"/*.deb; do dpkg-deb --field "$file" Package; done)
for name in $names; do
  dpkg --verify "$name"
done
echo "installed:" $names

cd "$work"
cp -r "$examples" examples
agentservices --version
agentservices import examples/MOTPREM.cbl -o MOTPREM.xml
agentservices new --flavour java MOTPREM.xml -o quotes.xml > /dev/null
agentservices lint quotes.xml
agentservices show --program quotes.xml | grep -q LK-VEH-MAKE
agentservices validate examples/*.xml > /dev/null
echo "the tool: from a source to a service that is checked"

schemas=$(pkg-config --variable=schemadir agentservices)
g++ -std=c++17 examples/cpp/dictionary.cpp -o by-pkg-config $(pkg-config --cflags --libs agentservices)
./by-pkg-config "$schemas" examples/MOTPREM.xml | grep -q "a group of"
mkdir made
g++ -std=c++17 "$client/toolkit.cpp" -o toolkit \
  $(pkg-config --cflags --libs agentservices agentservices-toolkit)
./toolkit "$schemas" examples made | grep -q "converted from Web to Java"
case $(ldd ./by-pkg-config) in
  *" /usr/lib/"*libAgentServices.so.* | *" /lib/"*libAgentServices.so.*) ;;
  *) ldd ./by-pkg-config; echo "the client does not use the library installed"; exit 1 ;;
esac
echo "pkg-config: clients of the library and of the toolkit"

documents=/usr/share/doc/libagentservices-doc
grep -q AgentServices "$documents/html/index.html"
agentservices validate "$documents"/examples/*.xml > /dev/null
echo "the guide and the examples are where they are looked for"

cat > CMakeLists.txt <<'TEXT'
cmake_minimum_required(VERSION 3.25)
project(Client LANGUAGES CXX)
find_package(AgentServices 1.0 REQUIRED COMPONENTS Toolkit Tool)
add_executable(client examples/cpp/dictionary.cpp)
target_link_libraries(client PRIVATE AgentServices::Toolkit)
target_compile_features(client PRIVATE cxx_std_17)
add_custom_target(check ALL
    COMMAND AgentServices::Tool validate ${CMAKE_SOURCE_DIR}/examples/MOTPREM.xml
    COMMAND client ${AgentServices_SCHEMA_DIR} ${CMAKE_SOURCE_DIR}/examples/MOTPREM.xml)
TEXT
cmake -S . -B build > "$work/log" && cmake --build build > "$work/log" 2>&1 || { cat "$work/log"; exit 1; }
grep -q "a group of" "$work/log"
echo "CMake: a client, and the tool in a build"

dpkg --purge $names > "$work/log" 2>&1 || { cat "$work/log"; exit 1; }
everything > "$work/after"
if ! diff "$work/before" "$work/after"; then
  echo "the packages left something behind, or took something with them"
  exit 1
fi
rm -rf "$work"
echo "removed: nothing is left"

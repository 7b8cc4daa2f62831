#!/usr/bin/env bash
# Builds the fuzz targets (clang, libFuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer) in build-fuzz/ and runs each for SECONDS
# (default 60), one after the other. Each starts from its corpus in
# fuzz/corpus/<target>/ (seeds and named regression inputs); what a run adds
# goes to build-fuzz/corpus/<target>/, a crashing input to
# build-fuzz/artifacts/. Exit status 1 when a target failed.
#
#   scripts/fuzz.sh 10                 # every target for 10 s
#   TARGETS="dxf_ascii" scripts/fuzz.sh 600
#   FUZZ_RUNS=1000 scripts/fuzz.sh     # a fixed number of inputs instead
#   FUZZ_RUNS="dxf_ascii=8000 units=200000" scripts/fuzz.sh   # per target
#
# FUZZ_SEED=N fixes libFuzzer's random seed (and Qt's hash seed); with
# FUZZ_FRESH=1 a run starts from the committed corpus only, not from what
# earlier runs added. Together with FUZZ_RUNS they make a run that explores
# the same inputs wherever it runs: CI's smoke run is one.
set -uo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
build_dir=${FUZZ_BUILD_DIR:-build-fuzz}
targets=${TARGETS:-dxf_ascii dxf_binary units service script}
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DZQ_FUZZ=ON -DZQ_BUILD_TESTS=OFF \
      -DZQ_BUILD_BENCH=OFF "${launcher[@]}" >/dev/null || exit 2
ninja -C "$build_dir" -j"${JOBS:-2}" $(for t in $targets; do echo "fuzz_$t"; done) || exit 2

# Seeds made at each run: the small shared sample drawings, as they are and
# in binary form (they are not kept in the repository).
mkdir -p "$build_dir/artifacts" "$build_dir/seeds/dxf_ascii" "$build_dir/seeds/dxf_binary"
samples=../shared/dxf-samples
if [ -d "$samples" ]; then
  find "$samples" -name '*.dxf' -size -64k -exec cp -f {} "$build_dir/seeds/dxf_ascii/" \;
  cp -f samples/demo.dxf "$build_dir/seeds/dxf_ascii/"
  if [[ " $targets " == *" dxf_binary "* ]]; then
    ninja -C "$build_dir" zq_dxf_to_binary >/dev/null &&
      ZQ_MODULE_PATH="$build_dir/lib" ASAN_OPTIONS=detect_leaks=0 "$build_dir/bin/zq_dxf_to_binary" "$build_dir/seeds/dxf_binary" \
        "$build_dir"/seeds/dxf_ascii/*.dxf samples/demo.dxf 2>/dev/null
  fi
fi
# The number of inputs for target $1 from FUZZ_RUNS ("N" or "target=N ...").
runs_for() {
  for kv in ${FUZZ_RUNS:-}; do
    case $kv in
      "$1="*) echo "${kv#*=}"; return ;;
      *=*) ;;
      *) echo "$kv"; return ;;
    esac
  done
}
seed=()
if [ -n "${FUZZ_SEED:-}" ]; then
  seed=(-seed="$FUZZ_SEED")
  export QT_HASH_SEED=0
fi
failed=()
for t in $targets; do
  work="$build_dir/corpus/$t"
  if [ -n "${FUZZ_FRESH:-}" ]; then
    work="$build_dir/corpus-fresh/$t"
    rm -rf "$work"
  fi
  mkdir -p "$work" "fuzz/corpus/$t"
  limit=(-max_total_time="$seconds")
  runs=$(runs_for "$t")
  [ -n "$runs" ] && limit=(-runs="$runs")
  dict=()
  [ -f "fuzz/dict/$t.dict" ] && dict=(-dict="fuzz/dict/$t.dict")
  echo "== fuzz_$t =="
  ZQ_MODULE_PATH="$build_dir/lib" ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1} \
  UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1} \
    "$build_dir/bin/fuzz_$t" "${limit[@]}" "${seed[@]}" "${dict[@]}" -timeout=20 -rss_limit_mb=2560 -max_len=65536 \
      -print_final_stats=1 -artifact_prefix="$build_dir/artifacts/$t-" "$work" "fuzz/corpus/$t" $(ls -d "$build_dir/seeds/$t" 2>/dev/null) \
      2> "$build_dir/fuzz_$t.log"
  status=$?
  grep -E "^(stat::|#[0-9]+ +DONE)" "$build_dir/fuzz_$t.log"
  if [ $status -ne 0 ]; then
    failed+=("$t")
    tail -40 "$build_dir/fuzz_$t.log"
  fi
done
if [ ${#failed[@]} -gt 0 ]; then
  echo "fuzz targets that failed: ${failed[*]} (inputs in $build_dir/artifacts/)"
  exit 1
fi

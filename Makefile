# The two set-up commands of the README: `make run` and `make test`.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
CMAKE_FLAGS ?=

.PHONY: run test deps configure build sanitize coverage fuzz clean

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD_DIR)

test: build
	@ctest --test-dir $(BUILD_DIR) --output-on-failure -j2

# `make run ARGS="~/Pictures"` opens the window with those items listed.
run: build
	@scripts/run.sh $(BUILD_DIR) $(ARGS)

# The tests built with AddressSanitizer and UBSan, in a build folder of their own.
sanitize:
	@$(MAKE) test BUILD_DIR=build-sanitize BUILD_TYPE=Debug CMAKE_FLAGS=-DTAVRIN_SANITIZE=ON

# Line and branch coverage of the engine and the command line, from every test.
coverage:
	@$(MAKE) build BUILD_DIR=build-coverage BUILD_TYPE=Debug CMAKE_FLAGS=-DTAVRIN_COVERAGE=ON
	@find build-coverage -name '*.gcda' -delete
	@ctest --test-dir build-coverage -j2 --output-on-failure >/dev/null || true
	@scripts/coverage-summary.sh build-coverage

# Each fuzz target for FUZZ_SECONDS under clang's libFuzzer with AddressSanitizer and UBSan,
# starting from its seed corpus in tests/fuzz/corpus. New inputs go to build-fuzz/corpus; an
# input that crashes is written next to the seeds, where `make test` runs it from then on.
# Clang 16: the ranges of the C++ library that Debian's GCC 12 ships do not build with clang 14.
FUZZ_SECONDS ?= 10
FUZZ_TARGETS := strings propertylists renamelogs
fuzz:
	@command -v clang++-16 >/dev/null || apt-get install -y clang-16 libclang-rt-16-dev
	@CC=clang-16 CXX=clang++-16 cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAVRIN_FUZZ=ON \
		-DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined" >/dev/null
	@cmake --build build-fuzz --target $(addprefix fuzz_,$(FUZZ_TARGETS))
	@for target in $(FUZZ_TARGETS); do \
		mkdir -p build-fuzz/corpus/$$target; \
		echo "fuzzing $$target for $(FUZZ_SECONDS) s"; \
		TMPDIR=$$(mktemp -d) XDG_DATA_HOME=$$(mktemp -d) XDG_CONFIG_HOME=$$(mktemp -d) \
		build-fuzz/tests/fuzz_$$target -max_total_time=$(FUZZ_SECONDS) -rss_limit_mb=2048 \
			-artifact_prefix=tests/fuzz/corpus/$$target/ build-fuzz/corpus/$$target tests/fuzz/corpus/$$target \
			|| exit 1; \
	done

clean:
	rm -rf $(BUILD_DIR) build-sanitize build-coverage build-fuzz

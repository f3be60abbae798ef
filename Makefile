# The two set-up commands of the README: `make run` and `make test`.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
CMAKE_FLAGS ?=

.PHONY: run test deps configure build sanitize coverage clean

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

clean:
	rm -rf $(BUILD_DIR) build-sanitize build-coverage

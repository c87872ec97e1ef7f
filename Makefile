# Courtmere: make build | run | test | bench
BUILD_DIR ?= build
JOBS ?= 2
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=Release

.PHONY: deps configure build run test bench clean format

deps:
	@./scripts/install-deps

configure: deps
	@cmake -S . -B $(BUILD_DIR) $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j$(JOBS)

# The desktop program; on a machine without a display, a headless
# demonstration with the command-line tool instead.
run: build
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY$$QT_QPA_PLATFORM" ]; then \
	  ./$(BUILD_DIR)/app/courtmere; \
	else \
	  echo "No display (DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM are unset): playing a headless season instead."; \
	  ./scripts/demo ./$(BUILD_DIR)/cli/courtmere-cli; \
	fi

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j$(JOBS)

bench: build
	./$(BUILD_DIR)/bench/courtmere-bench

format:
	@git ls-files '*.cc' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR)

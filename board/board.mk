# Virtual board: arm64 kernel in QEMU with the chip model on a real MDIO bus.
#
#   make demo                              build everything, boot, walk through the board
#   make shell                             boot into an interactive busybox shell
#   make board-run SCRIPT=path [BOARD=..]  run one guest script (BOARD: variant words)
#   make test-board [BOARD_TESTS=..]       every board/tests/*.sh, one boot each
#   make board-kernel                      only the kernel tree (KDIR for module builds)
#
# Output in $(BOARD_BUILD); $(BOARD_BUILD)/linux is the configured kernel tree.

BOARD_BUILD ?= $(BUILD)/board
BOARD_TESTS ?= $(wildcard board/tests/*.sh)
BOARD_ENV = BOARD_BUILD=$(abspath $(BOARD_BUILD))

CHECK_TARGETS += test-board

.PHONY: board-deps board-kernel board board-driver board-run test-board demo shell

board-deps:
	@scripts/ensure-deps.sh board

board-kernel: board-deps
	@$(BOARD_ENV) board/build.sh kernel

board: board-deps
	@$(BOARD_ENV) board/build.sh all

# The driver module is built (by the module build's own target) once its
# sources exist; until then the board runs without it.
board-driver: board
	@if [ -f mk/kmod.mk ] && [ -f drivers/net/phy/rtl8304.c ]; then \
		$(MAKE) --no-print-directory module; \
	else \
		echo "board: no driver sources yet, the board runs without rtl8304.ko"; \
	fi

board-run: board-driver
	@$(BOARD_ENV) BOARD_NO_BUILD=1 board/run.sh $(if $(BOARD),--board "$(BOARD)") $(SCRIPT)

test-board: board-driver
	@$(BOARD_ENV) board/test.sh $(BOARD_TESTS)

demo: board-driver
	@$(BOARD_ENV) BOARD_NO_BUILD=1 board/run.sh board/demo.sh

shell: board-driver
	@$(BOARD_ENV) BOARD_NO_BUILD=1 board/run.sh $(if $(BOARD),--board "$(BOARD)") --shell

# A function of each name that waits for its library: it goes where its slot points, and what finds
# none there asks for the library first. After System V's calling convention for x86-64, which
# leaves r11 to what stands between caller and called.
#include <cet.h>

#ifdef STANDS_IN
#define VISIBILITY(name)
#else
#define VISIBILITY(name) .hidden name;
#endif

#define CONSTANT(name, length, contents)
#define DEFERRED(number, name)                        \
  .globl name;                                        \
  VISIBILITY(name)                                    \
  .type name, @function;                              \
  name: _CET_ENDBR;                                   \
  movq cutlineDeferredSlots + 8 * number(%rip), %r11; \
  testq %r11, %r11;                                   \
  jz first_##number;                                  \
  jmp *%r11;                                          \
  first_##number:                                     \
  pushq $number;                                      \
  jmp resolve;                                        \
  .size name, . - name;

  .text
#include "DeferredCalls.inc"

# On the stack lie the function's number and the caller's return address. Whatever may hold an
# argument comes through as it was.
resolve:
  pushq %rax
  pushq %rdi
  pushq %rsi
  pushq %rdx
  pushq %rcx
  pushq %r8
  pushq %r9
  pushq %r10
  subq $128, %rsp
  movaps %xmm0, (%rsp)
  movaps %xmm1, 16(%rsp)
  movaps %xmm2, 32(%rsp)
  movaps %xmm3, 48(%rsp)
  movaps %xmm4, 64(%rsp)
  movaps %xmm5, 80(%rsp)
  movaps %xmm6, 96(%rsp)
  movaps %xmm7, 112(%rsp)
  movq 192(%rsp), %rdi
  call cutlineDeferredCall
  movq %rax, %r11
  movaps (%rsp), %xmm0
  movaps 16(%rsp), %xmm1
  movaps 32(%rsp), %xmm2
  movaps 48(%rsp), %xmm3
  movaps 64(%rsp), %xmm4
  movaps 80(%rsp), %xmm5
  movaps 96(%rsp), %xmm6
  movaps 112(%rsp), %xmm7
  addq $128, %rsp
  popq %r10
  popq %r9
  popq %r8
  popq %rcx
  popq %rdx
  popq %rsi
  popq %rdi
  popq %rax
  addq $8, %rsp
  jmp *%r11

#undef DEFERRED
#define DEFERRED(number, name) .zero 8;

  .bss
  .balign 8
  .globl cutlineDeferredSlots
  .hidden cutlineDeferredSlots
cutlineDeferredSlots:
#include "DeferredCalls.inc"

# What a library shows that is no function, and never changes.
#undef DEFERRED
#undef CONSTANT
#define DEFERRED(number, name)
#define CONSTANT(name, length, contents) \
  .globl name;                           \
  .type name, @object;                   \
  .size name, length;                    \
  .balign 16;                            \
  name: .ascii contents;

  .section .rodata
#include "DeferredCalls.inc"

  .section .note.GNU-stack, "", @progbits

# A function of each name that waits for its library: it goes where its slot points, at first to what
# asks for the library and fills in the slot. After System V's calling convention for x86-64.
#include <cet.h>

#define DEFERRED(number, name)                  \
  .globl name;                                  \
  .hidden name;                                 \
  .type name, @function;                        \
  name: _CET_ENDBR;                             \
  jmp *cutlineDeferredSlots + 8 * number(%rip); \
  .size name, . - name;                         \
  first_##number: _CET_ENDBR;                   \
  pushq $number;                                \
  jmp resolve;

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
#define DEFERRED(number, name) .quad first_##number;

  .section .data.rel.local, "aw"
  .balign 8
  .globl cutlineDeferredSlots
  .hidden cutlineDeferredSlots
cutlineDeferredSlots:
#include "DeferredCalls.inc"

  .section .note.GNU-stack, "", @progbits

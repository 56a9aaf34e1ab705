/* Makes tabs of the periods, which stand one below the other without it. Written anew with every page. */
(function () {
  'use strict';
  const root = document.documentElement;
  const state = root.classList;
  // Said before the first painting, so that nothing jumps when the tabs are there.
  state.add('js', 'wait');
  addEventListener('DOMContentLoaded', start);

  function start() {
    try {
      tooltips();
      const list = document.querySelector('.tabs');
      if (list) {
        tabs(list);
      }
    } finally {
      state.remove('wait');
    }
  }

  function tabs(list) {
    const tab = [...list.children];
    const panel = tab.map((link) => document.getElementById(decodeURIComponent(link.hash.slice(1))));
    const nav = list.parentElement;
    const [previous, play, next] = ['.previous', '.play', '.next'].map((name) => nav.querySelector(name));
    const still = matchMedia('(prefers-reduced-motion: reduce)');
    let shown = -1;
    let timer = 0;

    list.setAttribute('role', 'tablist');
    list.setAttribute('aria-label', nav.getAttribute('aria-label'));
    tab.forEach((link, i) => {
      link.id = 'tab_' + panel[i].id;
      link.setAttribute('role', 'tab');
      link.setAttribute('aria-controls', panel[i].id);
      panel[i].setAttribute('role', 'tabpanel');
      panel[i].setAttribute('aria-labelledby', link.id);
      panel[i].tabIndex = 0;
    });
    nav.querySelector('.steps').hidden = false;

    function show(i) {
      if (i === shown) {
        return false;
      }
      const focused = tab.includes(document.activeElement);
      shown = i;
      tab.forEach((link, k) => {
        link.setAttribute('aria-selected', k === i);
        link.tabIndex = k === i ? 0 : -1;
        panel[k].hidden = k !== i;
      });
      if (focused) {
        tab[i].focus({ preventScroll: true });
      }
      const strip = list.getBoundingClientRect();
      const box = tab[i].getBoundingClientRect();
      list.scrollLeft += (box.left + box.right - strip.left - strip.right) / 2;
      previous.setAttribute('aria-disabled', i === 0);
      next.setAttribute('aria-disabled', i === tab.length - 1);
      return true;
    }

    /* A step of the reader's: it ends the play and gets an address, to which Back returns. */
    function choose(i) {
      pause();
      if (i >= 0 && i < tab.length && show(i)) {
        try {
          history.pushState(null, '', '#' + encodeURIComponent(panel[i].id));
        } catch (refused) {
          location.hash = panel[i].id;
        }
      }
    }

    function showAddress() {
      let id = location.hash.slice(1);
      try {
        id = decodeURIComponent(id);
      } catch (malformed) { /* an id may hold a percent sign as it stands */ }
      const i = panel.findIndex((one) => one.id === id);
      if (i >= 0 || !id) {
        show(Math.max(i, 0));
      }
      return i >= 0;
    }

    function pause() {
      clearInterval(timer);
      timer = 0;
      label();
    }

    function label() {
      if (play) {
        play.classList.toggle('on', timer !== 0);
        play.setAttribute('aria-label', timer ? nav.dataset.pause : nav.dataset.play);
      }
    }

    function run() {
      timer = setInterval(() => {
        if (!document.hidden) {
          show((shown + 1) % tab.length);
        }
      }, nav.dataset.timer * 1000);
      label();
    }

    list.addEventListener('click', (event) => {
      const i = tab.indexOf(event.target.closest('a'));
      if (i >= 0 && !event.ctrlKey && !event.metaKey && !event.shiftKey && !event.altKey) {
        event.preventDefault();
        choose(i);
        tab[i].focus({ preventScroll: true });
      }
    });
    list.addEventListener('focusin', (event) => {
      const i = tab.indexOf(event.target);
      if (i >= 0 && i !== shown) {
        choose(i);
      }
    });
    list.addEventListener('keydown', (event) => {
      if (event.ctrlKey || event.metaKey || event.altKey || event.shiftKey) {
        return;
      }
      const forward = getComputedStyle(list).direction === 'rtl' ? 'ArrowLeft' : 'ArrowRight';
      const back = forward === 'ArrowRight' ? 'ArrowLeft' : 'ArrowRight';
      const count = tab.length;
      const i = { [forward]: (shown + 1) % count, [back]: (shown + count - 1) % count, Home: 0, End: count - 1 }[event.key];
      if (i !== undefined) {
        event.preventDefault();
        tab[i].focus({ preventScroll: true });
        choose(i);
      }
    });
    previous.addEventListener('click', () => choose(shown - 1));
    next.addEventListener('click', () => choose(shown + 1));
    addEventListener('popstate', () => { pause(); showAddress(); });
    addEventListener('hashchange', () => { pause(); showAddress(); });
    swipes(document.querySelector('main'), (step) => {
      choose(shown + (getComputedStyle(root).direction === 'rtl' ? -step : step));
    });
    if (play) {
      play.addEventListener('click', () => (timer ? pause() : run()));
      still.addEventListener('change', () => { if (still.matches) { pause(); } });
    }

    label();
    if (!showAddress()) {
      show(0);
      if (play && 'auto' in nav.dataset && !still.matches) {
        run();
      }
    }
  }

  /* Calls with 1 for a finger that went to the left, -1 for one that went to the right. */
  function swipes(area, act) {
    let start = null;
    area.addEventListener('touchstart', (event) => {
      start = event.touches.length === 1 ? event.touches[0] : null;
    }, { passive: true });
    area.addEventListener('touchend', (event) => {
      const end = event.changedTouches[0];
      if (start && start.identifier === end.identifier) {
        const x = end.clientX - start.clientX;
        const y = end.clientY - start.clientY;
        if (Math.abs(x) > 48 && Math.abs(x) > 2 * Math.abs(y)) {
          act(x < 0 ? 1 : -1);
        }
      }
      start = null;
    }, { passive: true });
    area.addEventListener('touchcancel', () => { start = null; }, { passive: true });
  }

  /* Style shows tooltips on hover and focus; here they open by touch and close with Escape. */
  function tooltips() {
    const close = (but) => document.querySelectorAll('.open').forEach((one) => {
      if (one !== but) {
        one.classList.remove('open');
      }
    });
    document.addEventListener('click', (event) => {
      const button = event.target.closest('.s > button');
      const sprite = button && button.parentElement;
      close(sprite);
      if (sprite) {
        sprite.classList.add('open');
      }
    });
    document.addEventListener('keydown', (event) => {
      if (event.key === 'Escape') {
        close();
        document.querySelectorAll('.s:hover, .s:focus-within').forEach((one) => {
          one.classList.add('shut');
          const again = () => one.classList.remove('shut');
          one.addEventListener('pointerleave', again, { once: true });
          one.addEventListener('focusout', again, { once: true });
        });
      }
    });
  }
})();
